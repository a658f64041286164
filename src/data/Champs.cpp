#include "data/Champs.h"

#include <string>

namespace verdane {

std::vector<ChampDonnee> ChargerChamps() {
    using enum SuffixeChamp;
    std::vector<ChampDonnee> liste = {
        {"Nom exploitant/société", "nomExplSoc"},
        {"Nom exploitant/1er ass. JA", "nomExplJA"},
        {"Nom de l'exploitant", "nomExploit"},
        {"Nom de la société", "nomSociete"},
        {"Nom Société+Associés", "nomSocAss"},
        {"Situation exploitant/ass.JA", "sitExplJA"},
        {"Age exploitant/1er ass. JA", "ageExplJA"},
        {"Type indiv./société", "type"},
        {"Rue/lieu-dit", "adresse"},
        {"Commune", "commune"},
        {"Numéro téléphone", "tel"},
        {"Numéro de fax", "fax"},
        {"Région agricole", "regionAgri"},
        {"Autre(s) activité(s)", "activAutre"},
        {"Banque", "banque"},
        {"Numéro d'adhérent", "numAdh"},
        {"Infos complètes associés", "associes"},
        {"Nombre d'associés", "nbAssocies"},
        {"Nom des associés", "nomAssocies"},
        {"Associés nés le...", "assNesLe"},
        {"Situation des associés", "situAss"},
        {"Nb associés J.A.", "nbAssJA"},
        {"Nom des associés J.A.", "nomAssJA"},
    };
    for (int n = 1; n <= 10; ++n)
        liste.push_back({"Nom du " + std::to_string(n) + (n == 1 ? "er" : "ème") + " associé",
                         "nomAss" + std::to_string(n)});
    const std::vector<ChampDonnee> suite = {
        {"Date début d'étude", "dateDebut"},
        {"Nb Année d'étude", "nbAnEtude"},
        {"Nom du Conseiller", "conseiller"},
        {"Description projet", "descProjet"},
        {"Nom du dossier", "nomDossier"},
        {"Chemin du dossier", "cheminDoss"},
        {"Date création dossier", "dateDossier"},
        {"Mois Rembours. TVA", "moisTva"},
        {"Devise Euros/Francs", "devise"},
        {"Mode commercialisation", "modeCom"},
        {"Date complète : début - fin", "date", Annee},
        {"Année début sur 2 chiffres", "an2Deb", Annee},
        {"Année fin sur 2 chiffres", "an2Fin", Annee},
        {"Année début sur 4 chiffres", "an4Deb", Annee},
        {"Année fin sur 4 chiffres", "an4Fin", Annee},
        {"Mois début sur 2 chiffres", "mois2Deb", Annee},
        {"Mois fin sur 2 chiffres", "mois2Fin", Annee},
        {"Mois début en clair", "moisCDeb", Annee},
        {"Mois fin en clair", "moisCFin", Annee},
        {"Nom abrégé", "OrgaSigle", Organisme},
        {"Nom complet", "OrgaNom", Organisme},
        {"Rue / Lieu-dit", "OrgaRue", Organisme},
        {"C.P - Ville", "OrgaVille", Organisme},
        {"Téléphone", "OrgaTel", Organisme},
        {"Fax", "OrgaFax", Organisme},
        {"Logo", "OrgaLogo", Organisme},
    };
    liste.insert(liste.end(), suite.begin(), suite.end());
    return liste;
}

} // namespace verdane
