// What the line dialog's formula composer, its text-format controls and its choice of a
// repeated table's value write into the line.

#include "support/FauxUtilisateur.h"
#include "tables/DialoguesLigne.h"
#include "tables/FormatsLigne.h"
#include "tables/Formules.h"
#include "tables/Totaliser.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

TEST(Totaliser, ReferencesAjouteesEnFinDeFormule) {
    test::FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};
    TableauModele t = NouveauTableau(ctx.etat.options);
    const LigneModele ligne = t.lignes[0];
    t.lignes.assign(4, ligne);
    t.lignes[0].cellules[0].texte = "Lait";
    Totaliser formule(ctx, t, 3, "");
    EXPECT_EQ(formule.LignesProposees(), (std::vector<Texte>{"LG1  Lait", "LG2"}));

    // Only a line above the total can be added; a tree node that isn't a series neither.
    EXPECT_FALSE(formule.AjouterLigne(3));
    EXPECT_TRUE(utilisateur.ADit("Il s'agit obligatoirement d'une ligne précédent la ligne du "
                                 "calcul !"));
    EXPECT_FALSE(formule.AjouterSerie("#DossLait", AnneeSerie::Colonne));
    EXPECT_EQ(formule.Formule(), "");

    EXPECT_TRUE(formule.AjouterLigne(2));
    formule.Ajouter("*(");
    EXPECT_TRUE(formule.AjouterSerie("VLVB.DON+VLVB-4", AnneeSerie::Colonne));
    formule.Ajouter("-");
    EXPECT_TRUE(formule.AjouterSerie("VLVB.DON+VLVB-4", AnneeSerie::Precedente));
    formule.Ajouter("+");
    EXPECT_TRUE(formule.AjouterSerie("VLVB.DON+VLVB-5", AnneeSerie::Fixe, 2));
    formule.Ajouter(")");
    EXPECT_EQ(formule.Formule(), "LG2*(LG(VLVB-4)-LG(VLVB-4!A-1)+LG(VLVB-5!A2))");
    // What is composed passes the editor's check of the formula.
    utilisateur.messages.clear();
    EXPECT_TRUE(VerifierFormule(ctx, formule.Formule(), [](int n) { return n < 3; }));
    EXPECT_TRUE(utilisateur.messages.empty());
    EXPECT_EQ(TextesAnneesFixes()[2], "2e année");
}

TEST(FormatsLigne, ControlesDuTexteParCellule) {
    const Options options;
    LigneModele ligne;
    ligne.formatTexte = "5006;10;1;0;0;0;0;0;r";
    ligne.cellules[0].formatTexte = "5010;12;3;1;0;0;0;0;l";
    ligne.cellules[0].formatCadre = "2;2;0;0;16";
    FormatsLigne formats(ligne, 2, options);
    EXPECT_EQ(formats.Style().alignement, "r");

    // A label cell without formats takes the ones the preview can show.
    formats.Choisir(2);
    EXPECT_EQ(formats.Ligne().cellules[1].formatTexte, kFormatTexteSaisie);
    EXPECT_EQ(formats.Ligne().cellules[1].formatCadre, "0;0;0;0;8");
    EXPECT_EQ(formats.Style().taille, 8);
    EXPECT_EQ(formats.Style().alignement, "c");

    formats.Choisir(1);
    StyleCellule s = formats.Style();
    EXPECT_EQ(s.police, 5010);
    EXPECT_TRUE(s.gras);
    s.gras = false;
    s.italique = s.souligne = s.barre = s.ombre = true;
    s.couleur = 40; // out of the palette
    s.alignement = "r";
    formats.Modifier(s);
    EXPECT_EQ(formats.Ligne().cellules[0].formatTexte, "5010;12;16;0;1;1;1;1;r");
    EXPECT_EQ(formats.Ligne().cellules[0].formatCadre, "2;2;0;0;16"); // the frame is the cell's
    formats.Choisir(9); // beyond the table's label columns
    EXPECT_EQ(formats.Cellule(), 2);
    formats.Choisir(0);
    EXPECT_EQ(formats.Ligne().formatTexte, "5006;10;1;0;0;0;0;0;r");
}

TEST(SerieRepetee, LaCleSeChoisitDansLeCatalogueDuGenre) {
    auto cles = [](TypeLigne type) {
        std::vector<Texte> r;
        for (const NoeudElement& n : ElementsSerieRepetee(type)) r.push_back(CleSerieRepetee(n));
        return r;
    };
    EXPECT_TRUE(cles(TypeLigne::Serie).empty());
    const auto cultures = cles(TypeLigne::SerieCulture);
    ASSERT_FALSE(cultures.empty());
    for (const Texte& c : cultures) EXPECT_TRUE(c.empty() || c[0] == '@') << c;
    const auto animaux = ElementsSerieRepetee(TypeLigne::SerieActivite);
    EXPECT_EQ(CleSerieRepetee(animaux[0]), ""); // a folder
    EXPECT_EQ(CleSerieRepetee(animaux[1]), "24");
    EXPECT_FALSE(cles(TypeLigne::SerieCulturePerenne).empty());
}

} // namespace
} // namespace verdane
