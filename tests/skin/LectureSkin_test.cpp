#include "skin/LectureSkin.h"

#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

#include <tuple>

namespace verdane::skin {
namespace {

bool Avertit(const LectureSkin& l, std::string_view morceau) {
    for (const auto& a : l.avertissements)
        if (a.find(morceau) != Texte::npos) return true;
    return false;
}

TEST(LectureSkin, ClesEnMajusculesBlancsEtCommentaires) {
    const auto l = LireDescriptionSkin("' un commentaire\r\n"
                                       "\r\n"
                                       "FICHIER = Peau.BMP\r\n"
                                       "heighttitre =24\r\n"
                                       "  ' pos = 0,0,1,1,0,0,1,1\r\n"
                                       "Pos = 0, 0, me.width, me.height, 1, 2, 3, 4\r\n"
                                       "MinWidth = 200.4\r\n"
                                       "posbend = me.width-20,2,16,16, 0,0,16,16\r\n"
                                       "posbend1 = me.width-20,2,16,16, 16,0,16,16\r\n"
                                       "backcolor=&hF0F0F0&\r\n"
                                       "lbltitre.pos = 20,0,me.width-60,20\r\n"
                                       "lbltitre.font = Segoe_UI,9.5,true,false,true\r\n"
                                       "menu.bend = 0,0,16,16, 0,40,16,16\r\n"
                                       "menu.bend = 0,0,16,16, 16,40,16,16\r\n",
                                       "/skins/bleu");
    EXPECT_TRUE(l.avertissements.empty()) << l.avertissements.front();
    const DescriptionSkin& s = l.skin;
    EXPECT_EQ(s.fichierImage, "/skins/bleu/peau.bmp");
    EXPECT_EQ(s.hauteurTitre, 24);
    ASSERT_EQ(s.traces.size(), 1u);
    EXPECT_EQ(s.traces[0].Destination(640, 480), (Rectangle{0, 0, 640, 480}));
    EXPECT_EQ(s.traces[0].Source(640, 480), (Rectangle{1, 2, 3, 4}));
    EXPECT_EQ(s.traces[0].ligne, 6);
    EXPECT_FLOAT_EQ(s.largeurMin, 200);
    ASSERT_TRUE(s.boutons[kBoutonFermer] && s.boutonsEnfonces[kBoutonFermer]);
    EXPECT_EQ(s.boutonsEnfonces[kBoutonFermer]->Source(0, 0).x, 16);
    EXPECT_FALSE(s.boutons[kBoutonReduire]);
    EXPECT_EQ(s.couleurFond, 0xF0F0F0);
    ASSERT_TRUE(s.titre.position);
    EXPECT_EQ((*s.titre.position)[2].Valeur(200, 0), 140);
    // The font's name has its "_" for a blank.
    EXPECT_EQ(s.titre.police.nom, "segoe ui");
    EXPECT_DOUBLE_EQ(s.titre.police.taille, 9.5);
    EXPECT_TRUE(s.titre.police.gras && s.titre.police.souligne && !s.titre.police.italique);
    EXPECT_EQ(s.menu[kBoutonFermer].size(), 2u);
    EXPECT_FALSE(s.transparence);
}

TEST(LectureSkin, Transparence) {
    // Text, then whether the window is see-through, its alpha, its key colour and the flag.
    const std::tuple<const char*, bool, int, std::int32_t, int> cas[] = {
        {"false,255;true,120", true, 120, kSansCleCouleur, 2},
        {"true,16711935;non,10", true, 255, 16711935, 3},
        {"false,1;false,2", false, 255, kSansCleCouleur, 0}};
    for (const auto& [texte, transparence, alpha, cle, drapeau] : cas) {
        const auto s = LireDescriptionSkin("transparence = " + Texte(texte) + "\n", "").skin;
        EXPECT_EQ(s.transparence, transparence) << texte;
        EXPECT_EQ(s.alpha, alpha) << texte;
        EXPECT_EQ(s.cleCouleur, cle) << texte;
        if (transparence) {
            EXPECT_EQ(s.DrapeauTransparence(), drapeau) << texte;
        }
    }
    const auto trop = LireDescriptionSkin("transparence=false,1;true,300\n", "");
    EXPECT_EQ(trop.skin.alpha, 255);
    EXPECT_TRUE(Avertit(trop, "alpha"));
}

TEST(LectureSkin, LignesFautivesIgnoreesEtNommees) {
    const auto l = LireDescriptionSkin("pos = 0,0,10,10,0,0,10,10\n"
                                       "sans egal\n"
                                       "couleur = 3\n"
                                       "pos = 0,0,10,10,0,0,10\n"
                                       "pos = 0,0,me.width/0,10,0,0,10,10\n"
                                       "pos = 0,0,-5,10,0,0,10,10\n"
                                       "pos = 0,0,10,10,0,0,99999,10\n"
                                       "taillebord = douze\n"
                                       "heighttitre = 1000000\n"
                                       "posbquoi = 0,0,1,1,0,0,1,1\n"
                                       "lbltitre.pos = 1,2,3\n"
                                       "button.mup = 1,2,x,4\n"
                                       "lbltitre.font = a,-3\n",
                                       "");
    EXPECT_EQ(l.skin.traces.size(), 1u);
    EXPECT_EQ(l.skin.tailleBord, 0);
    EXPECT_EQ(l.skin.hauteurTitre, 0);
    EXPECT_FALSE(l.skin.titre.position);
    EXPECT_EQ(l.avertissements.size(), 12u);
    EXPECT_TRUE(Avertit(l, "ligne 2 : ligne sans « = »"));
    EXPECT_TRUE(Avertit(l, "ligne 4 : 8 valeurs attendues"));
    EXPECT_TRUE(Avertit(l, "ligne 5 : « me.width/0 » : division par zéro"));
    EXPECT_TRUE(Avertit(l, "ligne 6 : taille -5"));
    EXPECT_TRUE(Avertit(l, "ligne 7 : taille 99999"));
    EXPECT_TRUE(Avertit(l, "ligne 10 : clé inconnue « posbquoi »"));
    EXPECT_TRUE(Avertit(l, "ligne 13 : lbltitre.font"));
}

TEST(LectureSkin, GrosFichierLuJusquaSaLimite) {
    Texte contenu;
    const Texte ligne = "pos = 0,0,me.width,me.height, 0,0,8,8\n";
    while (contenu.size() < 3 * kTailleMaxDescription) contenu += ligne;
    contenu += "inconnue = 1\n";
    const auto l = LireDescriptionSkin(contenu, "");
    EXPECT_EQ(l.skin.traces.size(), kMaxTraces);
    EXPECT_TRUE(Avertit(l, "dépasse"));
    EXPECT_FALSE(Avertit(l, "inconnue"));
    // One warning line per fault up to a bound, then one that says there are more.
    EXPECT_EQ(l.avertissements.size(), kMaxAvertissements + 1);
}

TEST(LectureSkin, SourcesCoupeesALImage) {
    auto l = LireDescriptionSkin("pos = 0,0,10,10, 0,0,10,10\n"
                                 "pos = 0,0,10,10, 160,0,10,10\n"
                                 "pos = 0,0,10,10, 90,0,20,10\n"
                                 "pos = 0,0,10,10, -5,-5,10,10\n"
                                 "posbend = 0,0,10,10, 500,0,10,10\n"
                                 "posbmin = 0,0,10,10, 0,0,10,10\n",
                                 "");
    VerifierSources(l, 100, 50);
    ASSERT_EQ(l.skin.traces.size(), 3u);
    EXPECT_EQ(l.skin.traces[1].Source(0, 0), (Rectangle{90, 0, 10, 10}));
    EXPECT_EQ(l.skin.traces[2].Source(0, 0), (Rectangle{0, 0, 5, 5}));
    EXPECT_FALSE(l.skin.boutons[kBoutonFermer]);
    EXPECT_TRUE(l.skin.boutons[kBoutonReduire]);
    EXPECT_TRUE(Avertit(l, "ligne 2 : source hors de l'image"));
    EXPECT_TRUE(Avertit(l, "ligne 3 : source en partie"));
    EXPECT_TRUE(Avertit(l, "ligne 5 : source hors"));
}

TEST(ChargerDescriptionSkin, FichiersAbsents) {
    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    EXPECT_FALSE(ChargerDescriptionSkin(u, d / "Skin.ini"));
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Fichier de configuration du skin introuvable !");
    EXPECT_EQ(u.messages[0].titre, "Erreur Skin.ini");

    u.messages.clear();
    d.Ecrire("Skin.ini", "fichier = absente.bmp\nheighttitre = 20\n");
    const auto l = ChargerDescriptionSkin(u, d / "Skin.ini");
    ASSERT_TRUE(l);
    EXPECT_EQ(l->skin.hauteurTitre, 20);
    EXPECT_TRUE(l->skin.fichierImage.empty());
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Le Fichier Image du Skin est introuvable !");
    EXPECT_EQ(u.messages[0].titre, "Erreur absente.bmp");

    // The bitmap named in another case is found.
    u.messages.clear();
    d.Ecrire("Peau.bmp", "BM");
    d.Ecrire("Skin.ini", "fichier = PEAU.bmp\n");
    EXPECT_FALSE(ChargerDescriptionSkin(u, d / "Skin.ini")->skin.fichierImage.empty());
    EXPECT_TRUE(u.messages.empty());
}

} // namespace
} // namespace verdane::skin
