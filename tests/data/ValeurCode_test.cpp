#include "data/ValeurCode.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::FichierDon;
using test_donnees::Serie;

using Textes = std::vector<Texte>;

// The dossier with a five-year study from 2004 and a few series files.
class ValeurCodeTest : public test_donnees::DossierFerme {
protected:
    ValeurCodeTest() {
        ctx.etat.nbAnEtude = 5;
        ctx.etat.anneeDebut = 2004;
        // VLVB.don: record 12 holds 100, 101.5, 103, ... with 2 decimals.
        std::vector<EnrDon> vlvb(12, Serie("VLVB-0:0", ""));
        vlvb[11] = Serie("VLVB-12: 2 ", "Lait vendu|litres", 100.0f, 1.5f);
        d.Ecrire("Ferme/VLVB.don", FichierDon(vlvb));
    }

    Texte Valeur(Texte code, std::int16_t annee = -1, std::int16_t decimales = -1,
                 int dossier = 0) {
        int posTiret = 0;
        const auto premier = code.find('-');
        if (premier != Texte::npos) {
            const auto second = code.find('-', premier + 1);
            posTiret = static_cast<int>((second == Texte::npos ? premier : second) + 1);
        }
        return ValeurCode(ctx, code, posTiret, annee, decimales, dossier);
    }
    Textes Valeurs(std::initializer_list<const char*> codes) {
        Textes t;
        for (const char* c : codes) t.push_back(Valeur(c));
        return t;
    }

    // Writes the series of a record 5 whose values over years 1..5 are given.
    void EcrireStat(const Texte& nom, std::array<float, 5> v) {
        EnrDon e = Serie("X-5:1", "Stat");
        for (std::size_t k = 0; k < 5; ++k) e.valeur[k + 1] = v[k];
        e.valeur[6] = -1000.0f; // beyond the study: never looked at
        std::vector<EnrDon> f(5, Serie("X-0:0", ""));
        f[4] = e;
        d.Ecrire("Ferme/" + nom, FichierDon(f));
    }
};

TEST_F(ValeurCodeTest, AnneesLibelleEtUnite) {
    // The one-digit form needs its "a" right behind the digit.
    EXPECT_EQ(Valeurs({"VLVB.don+VLVB-3a12", "VLVB.don+VLVB-10a12", "VLVB.don+VLVB-0a12",
                       "VLVB.don+VLVB-13a12", "VLVB.don+VLVB-03a12"}),
              (Textes{"104,50", "115,00", "100,00", "119,50", "104,50"}));
    d.Ecrire("Ferme/OV.don", FichierDon({Serie("OV-1:0", "Brebis ÉLEVÉES")}));
    EXPECT_EQ(Valeurs({"VLVB.don+VLVB-i12", "VLVB.don+VLVB-u12", "OV.don+OV-i1", "OV.don+OV-u1"}),
              (Textes{"lait vendu", "litres", "brebis élevées", ""}));
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(ValeurCodeTest, AnneeEtDecimalesRendues) {
    Texte code = "vlvb.DON+VLVB-10a12";
    std::int16_t annee = -1, decimales = -1;
    EXPECT_EQ(ValeurCode(ctx, code, 14, annee, decimales, 0), "115,00");
    EXPECT_EQ(annee, 10);
    EXPECT_EQ(decimales, 2);
    // Given decimals win over the record's; a given year takes all behind the "-" as record.
    EXPECT_EQ(Valeur("VLVB.don+VLVB-3a12", -1, 0), "104");
    EXPECT_EQ(Valeur("VLVB.don+VLVB-12", 4), "106,00");
}

TEST_F(ValeurCodeTest, HorsDesBornesAbsentOuTronqueDonneVide) {
    for (const char* code :
         {"VLVB.don+VLVB-14a12", "VLVB.don+VLVB-99a12", "VLVB.don+VLVB-3a13", "VLVB.don+VLVB-3a0",
          "VLVB.don+VLVB-3a", "VLVB.don+VLVB-", "VLVB.don+VLVB-3a99999999999999999999"})
        EXPECT_EQ(Valeur(code), "") << code;
    EXPECT_EQ(Valeur("VLVB.don+VLVB-12", 14), "");
    EXPECT_EQ(Valeur("VLVB.don+VLVB-12", -7), "");
    // Slot 1 names no dossier; slot 3 another one's.
    ctx.etat.RepDossier[3] = d.Chemin() + "autres";
    ctx.etat.NomDossier[3] = "Voisin";
    d.Ecrire("autres/Voisin/VL.don", FichierDon({Serie("VL-1:0", "v", 50)}));
    EXPECT_EQ(
        (Textes{Valeur("VLVB.don+VLVB-3a12", -1, -1, 1), Valeur("VLVB.don+VLVB-3a12", -1, -1, 42),
                Valeur("VL.don+VL-2a1", -1, -1, 3), Valeur("VL.don+VL-2a1", -1, -1, 0)}),
        (Textes{"", "", "52", ""}));

    d.Ecrire("Ferme/VIDE.don", "");
    // No file: not even the word is looked at.
    EXPECT_EQ(Valeurs({"ABSENT.don+X-3a1", "VIDE.don+X-3a1", "VIDE.don+X-zzz1"}), Textes(3));
    EXPECT_TRUE(u.messages.empty());

    std::string octets = FichierDon({Serie("T-1:0", "t", 1)});
    octets += EcrireEnrDon(Serie("T-2:0", "t", 2)).substr(0, 80);
    d.Ecrire("Ferme/T.don", octets);
    EXPECT_EQ(Valeurs({"T.don+T-1a1", "T.don+T-1a2", "T.don+T-i2", "T.don+T-max2"}),
              (Textes{"2", "", "", ""}));
}

TEST_F(ValeurCodeTest, MinimumMaximumSommeMoyenne) {
    EcrireStat("S.don", {3.0f, 1.0f, 4.0f, 1.0f, 4.0f});
    // A tie keeps the earlier year; index 1 counts as anneeDebut.
    EXPECT_EQ(Valeurs({"S.don+S-min5", "S.don+S-max5", "S.don+S-som5", "S.don+S-moy5",
                       "S.don+S-mina5", "S.don+S-maxa5"}),
              (Textes{"1,0", "4,0", "13,0", "2,6", "2005", "2006"}));
    EXPECT_EQ(Valeur("S.don+S-som5", -1, 3), "13,000");

    // A short period.
    EcrireStat("S.don", {3.0f, 1.0f, 9.0f, 1.0f, 4.0f});
    ctx.etat.nbAnEtude = 1;
    EXPECT_EQ(Valeurs({"S.don+S-min5", "S.don+S-maxa5", "S.don+S-moy5"}),
              (Textes{"3,0", "2004", "3,0"}));
    ctx.etat.nbAnEtude = 0; // valeur(1), no division by zero
    EXPECT_EQ(Valeurs({"S.don+S-moy5", "S.don+S-som5"}), (Textes{"3,0", "3,0"}));
    ctx.etat.nbAnEtude = 300; // beyond the 14 values: bounded
    EXPECT_EQ(Valeur("S.don+S-min5"), "-1 000,0");
}

TEST_F(ValeurCodeTest, MessagesDErreur) {
    EXPECT_EQ(Valeur("VLVB.don+VLVB-mix12"), "");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].titre, "Erreur détectée dans le modèle");
    EXPECT_EQ(u.messages[0].texte, "Le code \"VLVB.don+VLVB-mix12\" est erroné ( après le - )."
                                   "\r\nCette portion de code ne peut être traitée.");
    EXPECT_EQ(u.messages[0].technique,
              "Modifiez le modèle utilisé pour que ce message d'erreur n'apparaisse plus.");
    EXPECT_EQ(Valeur("VLVB.don+VLVB-s"), "");
    EXPECT_EQ(u.messages.size(), 2u);

    EXPECT_EQ(Valeur("VLVB.donVLVB-3a12"), "");
    ASSERT_EQ(u.messages.size(), 3u);
    EXPECT_EQ(u.messages[2].titre, "Erreur détectée :  cliquez Fermer pour continuer");
    EXPECT_EQ(u.messages[2].texte,
              "Le code \"VLVB.donVLVB-3a12\" est inconnu de l'interpréteur Verdane.");
    EXPECT_EQ(u.messages[2].technique, "Vous devez modifier en conséquence le modèle de "
                                       "document utilisé pour que cette erreur n'apparaisse "
                                       "plus.");
    EXPECT_EQ(u.messages[2].genre, "");

    // Two "-": the record stands behind the second.
    d.Ecrire("Ferme/RES-B.don", FichierDon({Serie("R-1:1", "r", 5)}));
    EXPECT_EQ(Valeur("RES-B.don+RES-2a1"), "7,0");
}

// The crop, perennial crop and animal module being expanded.
class ValeurCodeArobase : public ValeurCodeTest {
protected:
    ValeurCodeArobase() {
        auto& dom = ctx.etat.domaine;
        dom.numCulture = 3;
        dom.libelleCulture = "Blé tendre             ";
        dom.uniteCulture = "ha";
        dom.numCulturePerenne = 2;
        dom.libelleCulturePerenne = "Pommiers";
        dom.uniteCulturePerenne = "are";
        dom.numModuleAnimal = 5;
        dom.libelleModuleAnimal = "Brebis";
        std::vector<EnrDon> cult(12, Serie("C-0:0", ""));
        cult[11] = Serie("C-12:1", "Marge|€/ha", 10, 1);
        d.Ecrire("Ferme/CULT3.DON", FichierDon(cult)); // written so by another system
        d.Ecrire("Ferme/CltP2.don", FichierDon({Serie("P-1:0", "p", 20)}));
        d.Ecrire("Ferme/AL05AL.don", FichierDon({Serie("A-1:0", "a", 500)}));
        d.Ecrire("Ferme/AL12AL.don", FichierDon({Serie("A-1:0", "a", 1200)}));
    }
};

TEST_F(ValeurCodeArobase, FichierDeLaCultureCourante) {
    // No letter: the crop.
    EXPECT_EQ(Valeurs({"@12-3a", "@c12-10a", "@c12-i", "@12-u", "@12-max", "@12-mina", "@p1-2a",
                       "@a1-2a"}),
              (Textes{"13,0", "20,0", "marge", "€/ha", "15,0", "2004", "22", "502"}));
    // The crop's or the module's own facts.
    EXPECT_EQ(Valeurs({"@c-c", "@-n", "@-pc", "@-p", "@-ac", "@-a"}),
              (Textes{"ha", "Blé tendre", "are", "Pommiers", "", "Brebis"}));
    ctx.etat.domaine.numModuleAnimal = 12;
    EXPECT_EQ(Valeur("@a1-2a"), "1 202");
    ctx.etat.domaine.numCulture = 4; // no such file
    EXPECT_EQ(Valeur("@12-3a"), "");
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(ValeurCodeArobase, LeCodeEstRaccourci) {
    Texte code = "@c12-3a";
    std::int16_t annee = -1, decimales = -1;
    EXPECT_EQ(ValeurCode(ctx, code, 5, annee, decimales, 0), "13,0");
    EXPECT_EQ(code, "12-3a");
    EXPECT_EQ(annee, 3);
    // A position that doesn't fall on a "-" is found again.
    code = "@12-3a";
    annee = -1;
    EXPECT_EQ(ValeurCode(ctx, code, 0, annee, decimales, 0), "13,0");
}

TEST_F(ValeurCodeArobase, CodesMalFormesNePlantentPas) {
    for (auto codes :
         {std::vector<const char*>{"", "@", "@c", "@p", "@a", "@-", "@--", "+", "-", "+-", "-+",
                                   "VLVB.don+", "VLVB.don+-"},
          {"VLVB.don+VLVB--", "@99999999999999999999-3a", "@12-3", "@12-a", "@12-m", "@12-so",
           "VLVB.don+VLVB-1a", "VLVB.don+VLVB-a12", "VLVB.don+VLVB-\377\37712"}})
        for (const char* code : codes)
            for (int pos : {-5, 0, 1, 2, 3, 30}) {
                Texte c = code;
                std::int16_t annee = -1, decimales = -1;
                ValeurCode(ctx, c, pos, annee, decimales, 0);
            }
    SUCCEED();
}

TEST(FamilleDonnee, TagsReplies) {
    // Any case, a folder before; a name that isn't a catalogue's falls back on "redrep".
    const std::pair<const char*, const char*> cas[] = {
        {"vl.DON", "VL"},        {"OL.don", "OV"},
        {"PriCult.cfg", "CULT"}, {"RESBIS.don", "RES"},
        {"Cult3.don", "redrep"}, {"", "redrep"},
        {"VLVBX.don", "redrep"}, {"Datacfg\\PORC.CFG", "PORC"}};
    for (const auto& [fichier, famille] : cas)
        EXPECT_EQ(FamilleDonnee(fichier), famille) << fichier;
}

} // namespace
} // namespace verdane
