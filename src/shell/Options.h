#pragma once
// The options file Editeur.svg: 45 records of 128 bytes in the Verdane folder.

#include "shell/etat/Etat.h"

#include <string>
#include <string_view>

namespace verdane {

inline constexpr std::size_t kTailleEnregistrementOptions = 128;
inline constexpr int kNbEnregistrementsOptions = 45;

// Path of the options file.
Texte FichierOptions(const Etat& etat);

// Reads the records into the options and dossier slots 0 to 5. A file of fewer than 2 bytes is
// treated as absent. A missing file is created empty, and the Verdane folder before it, unless
// `lectureSeule`. Record 28 is forced to 1.
void ChargerOptions(Etat& etat, bool lectureSeule = false);
// Writes all 45 records with the current values, through a temporary file. False on failure.
bool EnregistrerOptions(const Etat& etat);

// The records as bytes, and back: the file layout on its own.
std::string OctetsOptions(const Etat& etat);
void LireOctetsOptions(Etat& etat, std::string_view octets);

} // namespace verdane
