#pragma once
// Helpers of the table model tests: a user port that records what it is told, and sample
// models.

#include "support/FauxUtilisateur.h"
#include "tables/TableauModele.h"

#include <vector>

namespace verdane::essais_tableaux {

using UtilisateurTemoin = test::FauxUtilisateur;

inline constexpr const char* kTexteGras = "5006;10;1;1;0;0;0;0;l";
inline constexpr const char* kTexteSimple = "5006;10;1;0;0;0;0;0;r";
inline constexpr const char* kCadre = "1;1;1;1;8";

inline LigneModele Ligne(const Texte& libelle, const Texte& definition) {
    LigneModele ligne;
    ligne.cellules[0] = {libelle, kTexteGras, kCadre};
    ligne.cellules[1] = {"", kTexteSimple, kCadre};
    ligne.definition = definition;
    ligne.formatTexte = kTexteSimple;
    ligne.formatCadre = kCadre;
    return ligne;
}

// A model holding every kind of line the editor makes, with accented labels.
inline TableauModele ModeleComplet() {
    TableauModele t;
    t.nbColonnes = 2;
    t.largeurs[0] = 2500;
    t.largeurs[1] = 800;
    t.largeurValeurs = 9000;
    t.centre = 1;
    t.rouge = 1;
    t.modeAnnees = kAnneeDebutEtToutes;
    t.lignes = {
        Ligne("Années", "entete:1:1ère année de prévision&Fin de prévision"),
        Ligne("Produit brut à l'hectare", "serie:PRODUIT.DON+PRODUIT-12:0:1"),
        Ligne("Charges opérationnelles", "serie:CHARGES.DON+CHARGES-3:7:2"),
        Ligne("Marge brute", "totalS:LG2-LG3:0:0"),
        Ligne("Ratio (%)", "totalC:(LG4/LG2)*100:2:3"),
        Ligne("Commentaire : « déjà vu » ÉÈÀÇ œ", "espace"),
        Ligne("", "cultu:ASSOL:0"),
        Ligne("", "cultp:ASSOLPER:0"),
        Ligne("", "imemp:inves"),
        Ligne("", "prime:pricv:0"),
        Ligne("", "newpg"),
        Ligne("Surface", "scult:SURF:1:0"),
        Ligne("Pérennes", "scltp:SURF:1:0"),
        Ligne("Têtes", "ALani:EFF:0:1"),
        Ligne("Inconnue", "bidule:rien"),
    };
    t.lignes[0].cellules[1] = {"Unité", kTexteGras, "0;0;0;0;8"};
    t.lignes[1].hauteur = 400;
    t.lignes[1].retrait = 60;
    t.lignes[5].hauteur = 0;
    t.lignes[5].retrait = 0;
    t.lignes[5].formatCadre = "2;2;0;0;16";
    return t;
}

} // namespace verdane::essais_tableaux
