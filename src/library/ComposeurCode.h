#pragma once
// The data codes that the insertion dialog composes from the user's choices: a series of the
// tree with the kind of value wanted, a general field, or a formula.

#include "data/Champs.h"
#include "library/GestInserVal.h"
#include "shell/etat/Contexte.h"

#include <optional>
#include <vector>

namespace verdane {

// The kind of value, one option button each.
enum class GenreValeur {
    Intitule, // label of the series
    Unite,    // unit of the series
    InfoGene, // unit or label of the crop or activity (the family's two entries)
    AnneeVal, // the year of the least or greatest value
    Valeur,   // a value: sum, mean, least, greatest, or that of one study year
};

// The choices of the dialog behind one data code.
struct ChoixDonnee {
    FamilleInsertion famille = FamilleInsertion::Classic;
    Texte cle; // key of the selected leaf
    GenreValeur genre = GenreValeur::Valeur;
    // The value list: 0 sum, 1 mean, 2 least, 3 greatest; 4 + n the study year n.
    int indexValeur = 4;
    // The extreme whose year is wanted: 0 least, 1 greatest.
    int indexAnMinMax = 0;
    // For InfoGene: the unit entry (true) or the label entry (false).
    bool entreeUnite = true;
    int decimales = 0; // 0 to 6, 7 for AUTO
};

class ComposeurCode {
public:
    // The entries of the value list and of the extreme list, in index order.
    static std::vector<Texte> ListeValeurs();
    static std::vector<Texte> ListeAnMinMax();
    // The entries of the decimals lists: "0" to "6", then "AUTO".
    static std::vector<Texte> ListeDecimales();

    // The letter that the "@" items of a family carry: "", "p" or "a".
    static Texte LettreFamille(FamilleInsertion famille);
    // The word that the kind of value puts into the key.
    static Texte Mot(const ChoixDonnee& choix);
    // The data code of a series of the tree (without marks). Empty when no leaf is chosen.
    static Texte CodeDonnee(const ChoixDonnee& choix);
    // What the choice means, in words, for the series named `nomSerie`.
    static Texte EnClair(const Texte& nomSerie, const ChoixDonnee& choix);

    // The code of a general field: its name, with the study year or the body number behind it
    // when it takes one.
    static Texte CodeChamp(const ChampDonnee& champ, int suffixe);

    // "formule:<annee>a:<formule>:<decimales>", after the checks of a formula outside a table;
    // nothing, the fault told, for an empty or wrong formula.
    static std::optional<Texte> CodeFormule(Contexte& ctx, int annee, const Texte& formule,
                                            int decimales);
    // True when the formula refers to series only (`LG(<file>-<record>)`), as a formula
    // outside a table must.
    static bool FormuleHorsTableauCorrecte(const Texte& formule);
};

} // namespace verdane
