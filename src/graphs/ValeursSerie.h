#pragma once
// The values of one series of a graph, read from a data file of the current dossier.

#include "shell/etat/Contexte.h"

#include <cstddef>
#include <string_view>

namespace verdane {

// Fills valeursSerie (indexes 0 to 13) with the values of the record whose trimmed code is
// `code` in the file `fichier` of the current dossier's folder. No such record, no such file
// or no dossier: all zeros, without a message.
void LireValeursSerie(Contexte& ctx, const Texte& fichier, const Texte& code);

// Number, from 1, of the first 90-byte record of a data file's bytes whose trimmed code is
// `code`; 0 if there is none.
std::size_t EnregistrementDuCode(std::string_view octets, std::string_view code);

} // namespace verdane
