#pragma once
// verdane-lot: the creation of a named dossier's document from the command line, with the
// conventions of a Linux tool (flags, exit statuses, a JSON report), sharing the engine.

#include "shell/Demarrage.h"
#include "shell/UtilisateurEnregistre.h"

#include <optional>
#include <string>
#include <vector>

namespace verdane {

struct OptionsLot {
    Texte dossier;
    Texte modele;
    Texte resultat;
    bool remplacer = false;
    std::vector<Texte> compares;
    std::optional<Reponse> reponse; // the answer to every question of the run
    Texte rapport;                  // path of the JSON report, empty for none
    bool aide = false;
    bool version = false;
};

// Reads the arguments (without the program name). Returns the options, or the text of the
// usage error.
struct LectureOptionsLot {
    std::optional<OptionsLot> options;
    Texte erreur;
};
LectureOptionsLot LireOptionsLot(const std::vector<Texte>& arguments);

Texte AideLot();

// What a run did, for its report.
struct BilanLot {
    int statut = kSortieFaite;
    // Why the document wasn't made; empty when it was.
    Texte raison;
    // A result asked in another format that stayed RTF: the path of that RTF.
    Texte copieRtf;
    int codesTrouves = 0;
    int codesTraites = 0;
    double secondes = 0;
};

// Runs the creation. `utilisateur` records what was said; the caller writes the report.
BilanLot ExecuterLot(Contexte& ctx, const OptionsLot& options, const Environnement& env);

// The JSON report of a run: the events kept in full, and the count of those left out.
std::string RapportJson(const OptionsLot& options, const BilanLot& bilan,
                        const std::vector<EvenementUtilisateur>& evenements,
                        const std::vector<EvenementsOmis>& omis = {});

} // namespace verdane
