#include "data/ChargerDossier.h"

#include "EssaisDonnees.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierTemporaire;
using test_donnees::FauxUtilisateurDonnees;

TEST(ChargerDossier, LitLEnregistrementEtLaPeriode) {
    DossierTemporaire d;
    EnrDossier e;
    e.nom = "Ferme";
    e.anneeDebut = 2004;
    e.nbAnEtude = 6;
    e.typeExploitation = 1;
    e.fax = "05 65 00 00 00";
    const std::string octets = EcrireEnrDossier(e);
    ASSERT_EQ(octets.size(), EnrDossier::kTaille);
    EXPECT_EQ(octets.substr(2090, 14), "05 65 00 00 00");
    d.Ecrire("Marlo/FERME/ferme", octets);

    FauxUtilisateurDonnees u;
    Contexte ctx(u);
    ctx.etat.RepDossier[0] = d.Chemin() + "Marlo";
    ctx.etat.NomDossier[0] = "Ferme";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.anneeDebut, 2004);
    EXPECT_EQ(ctx.etat.nbAnEtude, 6);
    EXPECT_TRUE(ctx.etat.enrDossier.EstSociete());
    EXPECT_EQ(Rogner(ctx.etat.enrDossier.fax), "05 65 00 00 00");
}

TEST(ChargerDossier, NomsOubliesQuandLesFichiersManquent) {
    DossierTemporaire d;
    FauxUtilisateurDonnees u;
    Contexte ctx(u);
    ctx.etat.RepDossier[0] = d.Chemin();
    ctx.etat.NomDossier[0] = "Absent";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.NomDossier[0], "");
    EXPECT_EQ(ctx.etat.RepDossier[0], d.Chemin());
    ctx.etat.RepDossier[0] = d.Chemin() + "rien";
    ctx.etat.NomDossier[0] = "Absent";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.RepDossier[0], "");
    EXPECT_EQ(ctx.etat.NomDossier[0], "");
    // A record file cut short reads its missing fields as blanks and zeros.
    EnrDossier e;
    e.nbAnEtude = 4;
    d.Ecrire("F/F", EcrireEnrDossier(e).substr(0, 196));
    ctx.etat.RepDossier[0] = d.Chemin();
    ctx.etat.NomDossier[0] = "F";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.nbAnEtude, 4);
    EXPECT_EQ(ctx.etat.enrDossier.typeExploitation, 0);
}

} // namespace
} // namespace verdane
