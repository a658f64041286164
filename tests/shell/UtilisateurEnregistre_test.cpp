#include "shell/Lot.h"
#include "shell/UtilisateurEnregistre.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(UtilisateurEnregistre, LesPremiersEnEntierLesSuivantsComptesParGenre) {
    test::FauxUtilisateur u;
    UtilisateurEnregistre e(u, 3);
    e.AfficherMessage({"code inconnu 1", "", "Erreur", ""});
    e.AfficherMessage({"", "", "", ""}); // leaves the form as it stands: no event
    e.Boite("boîte 1", "Attention", Icone::Attention);
    u.reponses = {Reponse::Oui};
    EXPECT_EQ(e.Question("Remplacer ?", "Verdane", Boutons::OuiNon, Reponse::Non, Icone::Question),
              Reponse::Oui);
    for (int i = 2; i <= 5; ++i)
        e.AfficherMessage({"code inconnu " + std::to_string(i), "", "Erreur", ""});
    e.Boite("boîte 2", "Attention", Icone::Attention);
    // Past the bound, questions are still put to the user and answered.
    EXPECT_EQ(e.Question("Encore ?", "Verdane", Boutons::OuiNon, Reponse::Non, Icone::Question),
              Reponse::Non);

    ASSERT_EQ(e.Evenements().size(), 3u);
    EXPECT_EQ(e.Evenements()[2].genre, EvenementUtilisateur::Genre::Question);
    EXPECT_EQ(e.Evenements()[2].reponse, Reponse::Oui);
    EXPECT_EQ(e.NombreOmis(), 6);
    ASSERT_EQ(e.Omis().size(), 3u);
    EXPECT_EQ(e.Omis()[0].titre, "Erreur");
    EXPECT_EQ(e.Omis()[0].nombre, 4);
    EXPECT_EQ(e.Omis()[1].genre, "boite");
    EXPECT_EQ(e.Omis()[2].genre, "question");
    // Everything reached the user.
    EXPECT_EQ(u.messages.size(), 8u);
    EXPECT_EQ(u.questions.size(), 2u);
}

TEST(UtilisateurEnregistre, LesGenresOmisSontBornesEuxAussi) {
    test::FauxUtilisateur u;
    UtilisateurEnregistre e(u, 0);
    for (std::size_t i = 0; i < UtilisateurEnregistre::kGenresOmis + 20; ++i)
        e.AfficherMessage({"x", "", "titre " + std::to_string(i), ""});
    e.AfficherMessage({"x", "", "titre 0", ""});
    ASSERT_EQ(e.Omis().size(), UtilisateurEnregistre::kGenresOmis + 1);
    EXPECT_EQ(e.Omis().front().nombre, 2);
    EXPECT_EQ(e.Omis().back().genre, "autres");
    EXPECT_EQ(e.Omis().back().nombre, 20);
    EXPECT_EQ(e.NombreOmis(), static_cast<long long>(UtilisateurEnregistre::kGenresOmis) + 21);
}

TEST(UtilisateurEnregistre, LeRapportDitCeQuiAEteOmis) {
    test::FauxUtilisateur u;
    UtilisateurEnregistre e(u, 1);
    for (int i = 0; i < 3; ++i) e.AfficherMessage({"inconnu", "", "Erreur détectée", ""});
    OptionsLot o;
    const std::string json = RapportJson(o, BilanLot{}, e.Evenements(), e.Omis());
    EXPECT_NE(json.find("\"messages\":[{\"rang\":1,"), std::string::npos) << json;
    EXPECT_NE(json.find("\"evenementsOmis\":2,\"omisParGenre\":[{\"genre\":\"\",\"titre\":"
                        "\"Erreur d\xC3\xA9tect\xC3\xA9"
                        "e\",\"nombre\":2}]"),
              std::string::npos)
        << json;
}

} // namespace verdane
