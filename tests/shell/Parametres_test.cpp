#include "shell/Parametres.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

std::vector<EnrOrganisme> Organismes(std::size_t n) {
    std::vector<EnrOrganisme> v(n);
    for (std::size_t i = 0; i < n; ++i) {
        v[i].nom = "Organisme " + std::to_string(i);
        v[i].sigle = "O" + std::to_string(i);
        v[i].logo = "C:\\Logos\\é" + std::to_string(i) + ".bmp";
    }
    return v;
}

} // namespace

TEST(Parametres, LesOrganismesSeRelisent) {
    Etat e;
    const std::string octets = EcrireOctetsParametres(Organismes(3));
    EXPECT_EQ(octets.size(), kTailleEnteteParametres + 2 + 2 * 360 + 2);
    ASSERT_FALSE(LireOctetsParametres(e, octets).has_value());
    EXPECT_EQ(e.NbOrganismes, 2);
    EXPECT_EQ(e.Organismes[0].nom.substr(0, 11), "Organisme 0");
    EXPECT_EQ(e.Organismes[0].nom.size(), 80u); // fixed strings are kept as read
    EXPECT_EQ(e.Organismes[2].sigle.substr(0, 2), "O2");
    EXPECT_EQ(e.Organismes[1].logo.substr(0, 13), "C:\\Logos\\é1.b");

    // More bodies than places: the first twenty; a negative count: none.
    Etat plein;
    ASSERT_FALSE(LireOctetsParametres(plein, EcrireOctetsParametres(Organismes(25))).has_value());
    EXPECT_EQ(plein.NbOrganismes, 19);
    EXPECT_EQ(plein.Organismes[19].sigle.substr(0, 3), "O19");

    std::string negatif = EcrireOctetsParametres(Organismes(1));
    negatif[kTailleEnteteParametres] = '\xFF';
    negatif[kTailleEnteteParametres + 1] = '\xFF';
    Etat n;
    EXPECT_FALSE(LireOctetsParametres(n, negatif).has_value());
    EXPECT_EQ(n.NbOrganismes, 0);
}

TEST(Parametres, UnFichierTronqueOuAbsentArreteLeProgrammeAvecLeMessage) {
    const std::string entier = EcrireOctetsParametres(Organismes(4));
    for (std::size_t taille :
         {std::size_t{0}, std::size_t{100}, kTailleEnteteParametres, entier.size() - 3}) {
        Etat e;
        EXPECT_TRUE(LireOctetsParametres(e, entier.substr(0, taille)).has_value()) << taille;
    }

    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    Contexte ctx(u);
    ctx.etat.chemins.RepWinMarlo = d.Chemin();
    EXPECT_FALSE(ChargerParametres(ctx));
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte.rfind("WinMarlo est introuvable ! Détail de l'erreur : ", 0), 0u);
    EXPECT_NE(u.messages[0].texte.find("Cliquer OK pour fermer Verdane."), Texte::npos);

    d.Ecrire("PARAMLOG/marlo.PAR", entier.substr(0, 500));
    EXPECT_FALSE(ChargerParametres(ctx));
    d.Ecrire("PARAMLOG/marlo.PAR", entier);
    EXPECT_TRUE(ChargerParametres(ctx));
    EXPECT_EQ(ctx.etat.NbOrganismes, 3);
}

} // namespace verdane
