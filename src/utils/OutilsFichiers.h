#pragma once
// File helpers that every file access of the program goes through.
//
// Paths in data and arguments may use "\" or "/" (dossiers and options come from Windows);
// they are Windows-1252 like all text of the engine. `CheminSysteme` turns such a path into one
// the file system takes: separators made native, the name converted to UTF-8, and each part
// resolved without regard to case when the exact spelling isn't there (a dossier written on
// Windows may hold "CULT3.DON" where a code asks for "Cult3.don").

#include "utils/Texte.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace verdane {

// The separator this system writes at the end of folders.
#ifdef _WIN32
inline constexpr char kSeparateur = '\\';
#else
inline constexpr char kSeparateur = '/';
#endif

inline constexpr std::int16_t kAttributDossier = 16;

bool EstSeparateur(char c);

// Trims; adds the separator unless the trimmed text already ends with "\" or "/".
Texte AjouterBarre(std::string_view chemin);
// True if the name exists: a file, or a folder too when `attributs` holds the folder bit (16).
bool FichierExiste(std::string_view chemin, std::int16_t attributs = 0);
// Deletes a file if it exists; errors are ignored.
void SupprimerFichier(std::string_view chemin);
// 0 if the file doesn't exist, else its length.
std::int32_t TailleFichier(std::string_view chemin);
bool DossierExiste(std::string_view chemin);
// Creates one folder; errors are ignored.
void CreerDossier(std::string_view chemin);
// Creates each missing folder of the path, up to its last separator.
void CreerChemin(std::string_view chemin);
// "C:\a b\c.rtf" gives "file:///C|/a%20b/c.rtf": the older form of a file URL.
Texte UrlFichier(std::string_view chemin);
// Position of the last "\" or "/" of a path, or npos.
std::size_t DerniereBarre(std::string_view chemin);
// The name behind the last separator.
Texte NomFichier(std::string_view chemin);
// The folder up to and with the last separator; empty if none.
Texte DossierParent(std::string_view chemin);

// The path as the file system takes it (see above). Parts that don't exist keep their spelling.
// A path holding a NUL (a name read from a damaged data file) ends there.
std::filesystem::path CheminSysteme(std::string_view chemin);
// A path of the file system as text of the engine.
Texte CheminTexte(const std::filesystem::path& chemin);

// None of these helpers throws: a failure is an answer ("absent", 0, nothing read).
// Only a regular file is read: a folder, a pipe or a device gives nothing.

// Whole content of a file, or nothing if it can't be read.
std::optional<std::string> LireFichier(std::string_view chemin);
// Bytes of a file from `position`, at most `taille`; fewer at the end of the file, none beyond.
std::optional<std::string> LireOctets(std::string_view chemin, std::uint64_t position,
                                      std::size_t taille);

} // namespace verdane
