#include "shell/Chemins.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

void InitialiserChemins(Etat& etat, const Texte& dossierProgramme, const Texte& marloHome) {
    Chemins& c = etat.chemins;
    if (!Rogner(marloHome).empty()) {
        c.RepWinMarlo = AjouterBarre(marloHome);
    } else {
        const auto p = Minuscules(dossierProgramme).find("verdane");
        c.RepWinMarlo = p == Texte::npos ? Texte() : dossierProgramme.substr(0, p);
    }
    const Texte sep(1, kSeparateur);
    c.RepDatacfg = c.RepWinMarlo + "Datacfg" + sep;
    c.RepModelGraph = c.RepWinMarlo + "ModelGraph" + sep;
    c.RepVerdane = c.RepWinMarlo + "Verdane" + sep;
    c.RepModlDocs = c.RepVerdane + "ModlDocs" + sep;
    c.RepImages = c.RepVerdane + "Images" + sep;
    c.RepSkin = c.RepVerdane + "Skin" + sep + "SkinVerdane";
    const Texte guide = c.RepVerdane + "GuideVerdane" + sep;
    c.RepGuide = DossierExiste(guide) ? guide : Texte(kAdresseGuide);
}

} // namespace verdane
