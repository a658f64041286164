#pragma once
// The named fields that the data insertion menu offers, in their fixed order.

#include "utils/Texte.h"

#include <vector>

namespace verdane {

// What the code of a field takes behind it.
enum class SuffixeChamp {
    Aucun,     // the code stands alone
    Annee,     // a study year digit, 0 to 9
    Organisme, // the number of a body of the parameter file
};

struct ChampDonnee {
    Texte libelle;
    Texte code;
    SuffixeChamp suffixe = SuffixeChamp::Aucun;
};

std::vector<ChampDonnee> ChargerChamps();

} // namespace verdane
