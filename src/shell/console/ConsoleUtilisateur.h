#pragma once
// The user port on a terminal. Messages go to stderr in UTF-8. A question reads its answer
// from the terminal when stdin is one; otherwise it takes its default and says so, so that a
// batch run never waits. The gauge is a bar on stderr when stderr is a terminal.

#include "shell/etat/PortUtilisateur.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace verdane {

class ConsoleUtilisateur : public PortUtilisateur {
public:
    ConsoleUtilisateur();
    // For tests: explicit streams and whether each is a terminal.
    ConsoleUtilisateur(std::FILE* entree, bool entreeTerminal, std::FILE* erreur,
                       bool erreurTerminal);

    void AfficherMessage(const Message& message) override;
    void Boite(const Texte& texte, const Texte& titre, Icone icone) override;
    Reponse Question(const Texte& texte, const Texte& titre, Boutons boutons, Reponse parDefaut,
                     Icone icone) override;
    void OuvrirJauge(const Texte& titre) override;
    void PoserJauge(int largeur, const Texte& libelle) override;
    void FermerJauge() override;
    // At a terminal: the count, then each dossier's path (an empty answer keeps what stands).
    // Without one: the dossiers as they stand (those of the options file), said on stderr.
    bool ChoisirDossiers(const Texte& titre, const Texte& consigne, int& nombre,
                         std::vector<DossierCompare>& dossiers) override;

    // An answer imposed on every question (verdane-lot --reponse): Oui or Non, taken as OK or
    // Cancel by a question that has those buttons. None by default.
    void ImposerReponse(std::optional<Reponse> reponse) { imposee_ = reponse; }

private:
    void Ecrire(const std::string& utf8);
    // A line typed at the terminal, without its end; nothing at the end of input.
    std::optional<std::string> LireLigne();
    std::FILE* entree_;
    bool entreeTerminal_;
    std::FILE* erreur_;
    bool erreurTerminal_;
    bool jaugeOuverte_ = false;
    std::optional<Reponse> imposee_;
};

// Text of the engine written to the terminal: Windows-1252 to UTF-8, RTF-free line breaks.
std::string TexteConsole(const Texte& texte);

} // namespace verdane
