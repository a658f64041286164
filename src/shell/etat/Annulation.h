#pragma once
// The stop of a long work by the user. A user port that shows a gauge with a cancel button
// also derives from Annulable; the creation driver asks it between two pieces of the model.
// A port that doesn't (the console, the silent port) never stops anything.

#include "shell/etat/PortUtilisateur.h"

namespace verdane {

class Annulable {
public:
    virtual ~Annulable() = default;
    // True when the user has asked, since the gauge opened, to stop the work under way.
    virtual bool Annulation() = 0;
};

inline bool AnnulationDemandee(PortUtilisateur& utilisateur) {
    auto* annulable = dynamic_cast<Annulable*>(&utilisateur);
    return annulable != nullptr && annulable->Annulation();
}

} // namespace verdane
