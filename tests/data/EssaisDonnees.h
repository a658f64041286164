#pragma once
// Helpers of the data reader tests: series records and .don files.

#include "data/EnrDon.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace verdane::test_donnees {

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

// A dossier "Ferme" in a scratch folder as slot 0; numbers with a plain space for thousands.
class DossierFerme : public ::testing::Test {
protected:
    DossierFerme() : ctx(u) {
        ctx.etat.RepDossier[0] = d.Chemin();
        ctx.etat.NomDossier[0] = "Ferme";
        ctx.etat.marques = MarquesNombre{",", " "};
    }
    DossierTemporaire d;
    test::FauxUtilisateur u;
    Contexte ctx;
};

} // namespace verdane::test_donnees
