#include "domain/TabsCultures.h"

#include "DossierDomaine.h"
#include "domain/TabsActiLibres.h"
#include "utils/Chaines.h"

namespace verdane::test {
namespace {

class TabsCulturesTest : public DossierDomaine {
protected:
    TabsCulturesTest() {
        ctx.etat.nbAnEtude = 3;
        TableauModele t;
        t.largeurs[0] = 2000;
        t.largeurValeurs = 6000;
        LigneModele l;
        l.definition = "cultu:assolement:1:0";
        t.lignes = {l};
        ctx.etat.tableaux.TableauxCourants = {t};
    }
    static EnrCulture Culture(const char* libelle, int genre, float numero, float surface) {
        EnrCulture c;
        c.libelle = libelle;
        c.genre = static_cast<std::int16_t>(genre);
        c.numero = numero;
        auto& a = c.series[static_cast<std::size_t>(IndexSerieCulture("assolement"))];
        for (std::size_t k = 0; k < a.size(); ++k) a[k] = surface + static_cast<float>(k);
        return c;
    }
    void Definition(const char* def) {
        ctx.etat.tableaux.TableauxCourants[0].lignes[0].definition = def;
    }
    std::string Lignes() { return LignesCultures(ctx, 1, "\\plain \\trowd\\trleft0"); }
};

TEST_F(TabsCulturesTest, AssolementParGroupesAvecTotaux) {
    Cultures({Culture("Maïs ensilage", 3, 1, 20), Culture("Blé", 1, 2, 30),
              Culture("Orge", 2, 3, 10), Culture("Inconnue", 7, 4, 99), EnrCulture{},
              Culture("Après la fin", 1, 5, 1000)});
    const std::string rtf = Lignes();
    EXPECT_TRUE(DansLOrdre(rtf, {" Blé}", " Orge}", " Cultures de vente}", " Maïs ensilage}",
                                 " Cult. fourragères}", " Cult. maraîchères}"}));
    // Years 1 to 3 of the sums: vente 31+11, 32+12, 33+13 at one decimal, in bold; year 0
    // isn't shown.
    EXPECT_TRUE(
        Contient(rtf, {"\\b 42,0}\\cell", "\\b 46,0}\\cell", " 21,0}\\cell", "\\cellx8000"}));
    EXPECT_TRUE(Exclut(rtf, {"Inconnue", "Après", " 20,0}"}));
    EXPECT_EQ(Compter(rtf, "\\cellx"), 6 * 4);
    EXPECT_EQ(SerieCultureParNom(ctx.etat.domaine, "totalvente", 2), 44.0f);
    EXPECT_EQ(SerieCultureParNom(ctx.etat.domaine, "TotalMarai:1", 1), 0.0f);
}

TEST_F(TabsCulturesTest, SeulementFourrageresEtSansAssol) {
    Cultures({Culture("Prairie", 3, 1, 5)});
    // The sale total is 0: an empty cell.
    std::string rtf = Lignes();
    EXPECT_TRUE(
        Contient(rtf, {"Cultures de vente}\\cell\\ql\\intbl\\clvertalb{\\fs20\\f5006\\cf1\\b  }",
                       " Cult. maraîchères}"}));
    Definition("cultu:rendement:0");
    rtf = Lignes();
    EXPECT_EQ(rtf.find("Cultures de vente"), std::string::npos);
    EXPECT_EQ(Compter(rtf, "\\row"), 1);
    d.Ecrire("Ferme/cult.clt", "");
    EXPECT_EQ(Lignes() + LignesCultures(ctx, 2, "") + LignesCultures(ctx, 0, ""), "");
}

TEST_F(TabsCulturesTest, ListeAbsenteSansLigneNiTotal) {
    // A dossier without its crop list: nothing at all, and sums left from a former table read 0.
    ctx.etat.domaine.totalVente.fill(9);
    EXPECT_EQ(Lignes(), "");
    EXPECT_EQ(SerieCultureParNom(ctx.etat.domaine, "totalvente", 2), 0.0f);
    Cultures({Culture("Prairie", 3, 1, 5)});
    EXPECT_EQ(Compter(Lignes(), "\\row"), 4);
}

TEST_F(TabsCulturesTest, CodesArobaseEtComposites) {
    ctx.etat.domaine.numCulture = 7;
    ctx.etat.domaine.cultureCourante.genre = 2;
    Don("Cult7.don", {{1, {0, 10, 20}},
                      {15, {0, 5}},
                      {16, {0, 10}},
                      {17, {0, 15}},
                      {19, {0, 1.5f}},
                      {20, {0, 3}},
                      {82, {7, 8, 9}},
                      {5, {0, 4}},
                      {6, {0, 10}}});
    Don("Cult7t.don", {{46, {0, 4}}, {70, {0, 10}}});
    auto valeurs = [&](std::initializer_list<const char*> codes) {
        std::vector<float> v;
        for (const char* c : codes) v.push_back(NombreArobaseCulture(ctx.etat, c, 1, false));
        return v;
    };
    // Kind 2 reads record 19 for 18, kind 1 record 17.
    EXPECT_EQ(valeurs({"15+16+17/1", "@15+16+17/1:2", "82a-1", "6-5", "70/46t", "70t", "18"}),
              (std::vector<float>{3, 3, 7, 6, 2.5f, 10, 1.5f}));
    EXPECT_EQ(NombreArobaseCulture(ctx.etat, "15+16+17/1", 3, false), 0.0f); // a zero surface
    EXPECT_EQ(NombreArobaseCulture(ctx.etat, "82a-1", 0, false), 0.0f);
    ctx.etat.domaine.cultureCourante.genre = 1;
    EXPECT_EQ(valeurs({"18", "19", "17", "n'importe quoi", "999"}),
              (std::vector<float>{15, 3, 15, 0, 0}));
    EXPECT_EQ(ValeurArobaseCulture(ctx, "16:2", 1, false), "10,00");
    EXPECT_EQ(ValeurArobaseCulture(ctx, "16", 1, false), "10");
    ctx.etat.domaine.numCulturePerenne = 2;
    Don("CltP2.don", {{1, {0, 3.25f}}});
    EXPECT_EQ(ValeurArobaseCulture(ctx, "assolemper:1", 1, true), "3,2");
    EXPECT_EQ(ValeurArobaseCulture(ctx, "1", 1, true), "3,25");
}

TEST_F(TabsCulturesTest, LibelleCoutNetPourFourrageres) {
    TableauModele t;
    LigneModele l;
    l.definition = "scult:@14:0";
    ctx.etat.domaine.libelleCulture = "Maïs                   ";
    ctx.etat.domaine.cultureCourante.genre = 3;
    t.typeEntete = 2;
    EXPECT_EQ(LibelleLigneCulture(ctx.etat, t, l, 1, "Marge"), "Coût net op.");
    EXPECT_EQ(LibelleLigneCulture(ctx.etat, t, l, 2, "Marge"), "Marge");
    ctx.etat.domaine.cultureCourante.genre = 1;
    EXPECT_EQ(LibelleLigneCulture(ctx.etat, t, l, 1, "Marge"), "Marge");
    t.typeEntete = 1;
    EXPECT_EQ(LibelleLigneCulture(ctx.etat, t, l, 1, "Marge"), "Maïs");
    l.definition = "serie:X.don+X-1";
    EXPECT_EQ(LibelleLigneCulture(ctx.etat, t, l, 1, "Marge"), "Marge");
}

TEST_F(TabsCulturesTest, TableauRepeteParCulture) {
    ctx.etat.decalageCouleurs = 1;
    ctx.etat.enrDossier.devise = 1;
    EnrCulture ble = Culture("Blé", 1, 2, 30);
    ble.unite = "0";
    ble.derobee = 0;
    Cultures({ble, Culture("Chou", 4, 5, 1)});
    Don("Cult2.don", {{17, {0, 1234}}});
    std::vector<std::string> vus;
    const RenduTableau rendu = [&](Contexte& c, const Texte& code) {
        vus.push_back(Rogner(c.etat.domaine.libelleCulture) + "|" + code);
        return Texte("[table]");
    };
    const std::string rtf = TableauCultures(ctx, "culture13tab(x)", rendu);
    EXPECT_EQ(vus, (std::vector<std::string>{"Blé|culture13tab(x)", "Chou|culture13tab(x)"}));
    // Cult5.don is missing: no stock value.
    const std::string entete =
        "\\b     Blé" + std::string(50, ' ') + "Culture de vente principale\\par";
    EXPECT_TRUE(Contient(rtf, {"\\qr\\fs20\\cf2\\b 3-1\\par \\plain ",
                               "\\qr\\fs20\\cf2\\b 3-2\\par \\plain ", entete, "Unité : qx/ha",
                               "Valeur stock : 1 234 €", "Valeur stock :  €", "Cult. maraîchère"}));
    const std::string bande = TableauCultures(ctx, "culture2tab(x)", rendu);
    EXPECT_TRUE(Exclut(bande, {"3-"}));
    EXPECT_TRUE(
        Contient(bande, {"\\cellx1500 ", "\\b ACTIVITE :}\\cell\\ql\\intbl\\clvertalb{\\fs20\\cf2 "
                                         "Chou}\\cell\\row\\pard\\plain "}));
    EXPECT_EQ(TableauCultures(ctx, "culture0tab(x)", rendu), "[table][table]");
}

TEST_F(TabsCulturesTest, PerennesSansDonneesSautees) {
    EnrCulturePerenne vigne, verger, vide;
    vigne.genre = verger.genre = vide.genre = 1;
    vigne.numero = 1;
    vigne.libelle = "Vigne";
    vigne.pleineProduction = 4;
    vigne.dureeAmortissement = 25;
    verger.numero = 2;
    vide.numero = 3;
    Perennes({vigne, verger, vide});
    Don("CltP1.don", {{74, {0, 0, 0, 0, 0, 0, 5}}});
    Don("CltP3.don", {{74, {9, 0, 0, 0, 0, 0, 0, 9}}});
    int fois = 0;
    const std::string rtf = TableauCultures(ctx, "cultper1tab(x)", [&](Contexte& c, const Texte&) {
        ++fois;
        return Texte(c.etat.domaine.libelleCulturePerenne);
    });
    EXPECT_EQ(fois, 1);
    EXPECT_TRUE(Contient(rtf, {"Caractéristiques :", "Pleine production : 4 ans",
                               "Durée d'amortissement : 25 ans\\par\\plain "}));
    ctx.etat.domaine.ignorerPerennesVides = false;
    fois = 0;
    TableauCultures(ctx, "cultper1tab(x)",
                    [&](Contexte&, const Texte&) { return ++fois, Texte(); });
    EXPECT_EQ(fois, 2); // CltP2.don is missing
}

TEST_F(DossierDomaine, ActivitesAnimales) {
    d.Ecrire("Ferme/ModAniLib.ini",
             "[GLOBAL]\r\nNumLastMod=3\r\n[MOD1]\r\nACTIF=0\r\nNom=Ovins\r\n"
             "[MOD2]\r\nACTIF=1\r\nNom=Porcs plein air \r\n[MOD3]\r\nNom=Lapins\r\n");
    Don("AL02AL.don", {{156, {0, 12.5f, 13}}});
    std::vector<std::string> vus;
    const std::string rtf =
        TableauActivites(ctx, "actlibr15tab(x)", [&](Contexte& c, const Texte&) {
            vus.push_back(ValeurActivite(c, "@156:1", 1) + "|" + ValeurActivite(c, "156", 2));
            return Texte();
        });
    EXPECT_EQ(vus, std::vector<std::string>{"12,5|13"});
    EXPECT_TRUE(
        Contient(rtf, {"\\b 5-1\\par \\plain ",
                       "\\ql\\fs28\\cf1\\b\\ul Porcs plein air\\par \\plain \\par \\plain "}));
    EXPECT_TRUE(u.messages.empty());

    ctx.etat.domaine.numModuleAnimal = 12;
    ctx.etat.domaine.moduleSignale = 0;
    EXPECT_EQ(ValeurActivite(ctx, "156:0", 1), "0");
    EXPECT_EQ(ValeurActivite(ctx, "157:0", 1), "0");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].titre, "Données des activ. libres animales introuvable !");
    EXPECT_EQ(u.messages[0].texte, "Le fichier AL12AL.don contenant les données à récupérer pour "
                                   "construire le document RTF est introuvable !");
    EXPECT_EQ(
        u.messages[0].technique.rfind("Répertoire de recherche (dossier Marlo en cours) : ", 0),
        0u);
    EXPECT_EQ(ValeurActivite(ctx, "abc", 1), "0");
    d.Ecrire("Ferme/ModAniLib.ini", "");
    EXPECT_EQ(TableauActivites(ctx, "actlibr1tab(x)", nullptr), "");
}

} // namespace
} // namespace verdane::test
