#pragma once
// The dossier record of Marlo: record 1 (2110 bytes) of the file named as the dossier, inside
// the dossier folder. Fixed strings are kept as read, padding included; trim at use.

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace verdane {

struct EnrDossier {
    static constexpr std::size_t kTaille = 2110;

    Texte chemin;          // 50
    Texte nom;             // 50
    Texte nomExploitation; // 30
    Texte adresse;         // 30
    Texte commune;         // 30
    std::int16_t reserve1 = 0;
    std::int16_t anneeDebut = 0;
    std::int16_t nbAnEtude = 0;
    std::int32_t typeExploitation = 0; // 1 = société
    Texte descProjet;                  // 500, lines separated by a carriage return
    Texte dateDebut;                   // 10, dd/mm/yyyy
    Texte conseiller;                  // 20
    std::int16_t nbAssocies = 0;
    std::array<Texte, 11> nomAssocie;         // 30 each
    std::array<std::int16_t, 11> jaAssocie{}; // 1 = young farmer
    std::array<Texte, 11> naissanceAssocie;   // 10 each
    std::array<Texte, 11> situationAssocie;   // 15 each
    Texte regionAgri;                         // 40
    Texte activAutre;                         // 40
    Texte banque;                             // 40
    Texte numAdh;                             // 15
    std::array<Texte, 7> produit;             // 40 each, paired with modeCom
    std::array<Texte, 7> modeCom;             // 40 each
    std::int16_t moisTva = 0;
    Texte reserve2;          // 12 bytes
    std::int16_t devise = 0; // 0 = Franc
    Texte tel;               // 20
    Texte fax;               // 20

    bool EstSociete() const { return typeExploitation == 1; }
};

// Reads a record from its bytes; missing bytes read as blanks and zeros.
EnrDossier LireEnrDossier(std::string_view octets);
// The 2110 bytes of a record (used by the sample builder and the tests).
std::string EcrireEnrDossier(const EnrDossier& enr);

} // namespace verdane
