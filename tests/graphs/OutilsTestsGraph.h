#pragma once
// Helpers of the graph tests: a user port that keeps what it is told, a scratch folder, and a
// graph model with every field set away from its default.

#include "graphs/ModeleGraph.h"
#include "shell/PortUtilisateur.h"

#include <filesystem>
#include <string>
#include <vector>

namespace verdane::test {

class UtilisateurNote : public UtilisateurMuet {
public:
    std::vector<Message> messages;
    std::vector<Texte> boites;
    void AfficherMessage(const Message& m) override { messages.push_back(m); }
    void Boite(const Texte& texte, const Texte&, Icone) override { boites.push_back(texte); }
};

// A folder of its own under the system's temporary folder, removed at the end.
class DossierTemporaire {
public:
    DossierTemporaire();
    ~DossierTemporaire();
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;
    const std::filesystem::path& Chemin() const { return chemin_; }
    // The folder as text of the engine, with its separator at the end.
    Texte Dossier() const;

private:
    std::filesystem::path chemin_;
};

// Three series, odd values in every field, reals with fractions.
ModeleGraph GrapheComplet();

} // namespace verdane::test
