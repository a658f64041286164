// The domain tables through the table walker: a table repeated by crop, and by activity.

#include "DossierDomaine.h"
#include "domain/LignesDomaineMarlo.h"
#include "domain/TabsActiLibres.h"
#include "domain/TabsCultures.h"

namespace verdane::test {
namespace {

constexpr const char* kFormat = ";5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

std::string L(const std::string& libelle, const std::string& definition) {
    return "[280;120][" + libelle + kFormat + "][" + definition + kFormat + "]";
}

class RenduDomaineTest : public DossierDomaine {
protected:
    RenduDomaineTest() {
        ctx.etat.nbAnEtude = 2;
        BrancherDomaine(ctx);
        EnrCulture ble, prairie;
        ble.numero = 1;
        ble.genre = 1;
        ble.libelle = "Blé tendre";
        prairie.numero = 2;
        prairie.genre = 3;
        prairie.libelle = "Prairie";
        const auto a = static_cast<std::size_t>(IndexSerieCulture("assolement"));
        ble.series[a] = {0, 40, 45};
        prairie.series[a] = {0, 20, 25};
        Cultures({ble, prairie});
        Don("Cult1.don", {{14, {0, 650, 700}}});
        Don("Cult2.don", {{14, {0, -120, -130}}});
    }
};

TEST_F(RenduDomaineTest, TableauRepeteParCultureAvecSesValeurs) {
    const std::string rtf = TableauCultures(ctx, "culture2tabp1;larg2000;larg4000(" +
                                                     L("Marge", "scult:@14:0:0") + ")");
    EXPECT_TRUE(Contient(rtf, {"ACTIVITE :}\\cell", " 650}\\cell", " -130}\\cell"}));
    // The fourragère's margin is a net cost; header form 2 keeps the line's label otherwise.
    const auto prairie = rtf.find(" Prairie}");
    EXPECT_LT(rtf.find(" Marge}"), prairie);
    EXPECT_TRUE(Contient(rtf.substr(prairie), {" Coût net op.}"}));
    EXPECT_TRUE(Exclut(rtf.substr(prairie), {" Marge}"}));
    EXPECT_EQ(CodeCoutNetOp("tab([1;2][A;f][scult:@145;f]#[1;2][B;f][scult:@15:0;f])"),
              "tab([1;2][A;f][scult:@145;f]#[1;2][Coût_net_op.;f][scult:@15:0;f])");
    EXPECT_EQ(CodeCoutNetOp("tab([scult:@14]"), "tab([scult:@14]");
    EXPECT_EQ(CodeCoutNetOp("tab[[]#"), "tab[[]#");
}

TEST_F(RenduDomaineTest, ActivitesAvecLeursDecimales) {
    d.Ecrire("Ferme/ModAniLib.ini",
             "[GLOBAL]\r\nNumLastMod=1\r\n[MOD1]\r\nACTIF=1\r\nNom=Ovins\r\n");
    Don("AL01AL.don", {{159, {0, 35.5f, 36}}});
    const std::string rtf = TableauActivites(ctx, "actlibr0tabp1;larg2000;larg4000(" +
                                                      L("UGB", "ALani:@159:1:0") + ")");
    EXPECT_TRUE(Contient(rtf, {" 35,5}\\cell", " 36,0}\\cell"}));
}

} // namespace
} // namespace verdane::test
