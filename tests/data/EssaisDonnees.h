#pragma once
// Helpers of the data reader tests: series records and .don files.

#include "data/EnrDon.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <string>
#include <vector>

namespace verdane::test_donnees {

using FauxUtilisateurDonnees = test::FauxUtilisateur;
using test::DossierTemporaire;

// A series record with the values `v0 + k * pas` at index k.
inline EnrDon Serie(const Texte& code, const Texte& libelle, float v0 = 0, float pas = 1) {
    EnrDon e;
    e.code = code;
    e.libelle = libelle;
    for (std::size_t k = 0; k < e.valeur.size(); ++k)
        e.valeur[k] = v0 + pas * static_cast<float>(k);
    return e;
}

// The bytes of a .don file holding these records, from record 1.
inline std::string FichierDon(const std::vector<EnrDon>& enregistrements) {
    std::string octets;
    for (const auto& e : enregistrements) octets += EcrireEnrDon(e);
    return octets;
}

} // namespace verdane::test_donnees
