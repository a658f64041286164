#include "OutilsTestsGraph.h"

#include "utils/OutilsFichiers.h"

#include <atomic>
#include <unistd.h>

namespace verdane::test {

DossierTemporaire::DossierTemporaire() {
    static std::atomic<int> compteur{0};
    chemin_ = std::filesystem::temp_directory_path() /
              ("verdane-graph-" + std::to_string(::getpid()) + "-" + std::to_string(++compteur));
    std::filesystem::remove_all(chemin_);
    std::filesystem::create_directories(chemin_);
}

DossierTemporaire::~DossierTemporaire() {
    std::error_code ec;
    std::filesystem::remove_all(chemin_, ec);
}

Texte DossierTemporaire::Dossier() const {
    return AjouterBarre(CheminTexte(chemin_));
}

ModeleGraph GrapheComplet() {
    ModeleGraph g;
    g.titre = ChampFixe("Marge brute", kLargeurTitreGraph);
    g.typeGraph = 10;
    g.legende = 1;
    g.nbSeries = 3;
    g.empile = -1;
    g.commentaire = ChampFixe("Produits et charges en €", kLargeurCommentaire);
    g.inversion = 1;
    g.espaceBarres = 7;
    g.espaceAnnees = -3;
    g.espaceSeries = 300;
    g.rectTitre = {0.125f, 1234.5f, -7.75f, 99.0f};
    g.rectPlot = {10.1f, 2000.3f, 15.7f, 1500.9f};
    g.rectLegende = {1e-3f, 3.0e7f, 0.0f, 1.0f / 3.0f};
    g.rectNote = {-1.5f, 2.5f, 3.25f, 4.0f};
    g.rotation = 30.5f;
    g.elevation = -12.25f;
    g.retourTitre = 0;
    g.orientTitre = 3;
    g.retourLegende = 0;
    g.orientNote = 4;
    for (std::size_t a = 0; a < g.axes.size(); ++a) {
        g.axes[a].titreAxe = ChampFixe("Axe " + std::to_string(a), kLargeurTitreAxe);
        g.axes[a].tailleAxe = static_cast<std::int16_t>(9 + a);
        g.axes[a].epaisseurAxe = static_cast<std::int16_t>(20 + a);
    }
    g.tailleTitre = 22;
    const char* noms[] = {"Produits", "Charges", "Marge"};
    for (std::size_t i = 0; i < 3; ++i) {
        auto& s = g.series[i];
        s.codeSerie = ChampFixe("CODE" + std::to_string(i + 1), kLargeurCodeSerie);
        s.nomSerie = ChampFixe(noms[i], kLargeurNomSerie);
        s.typeSerie = static_cast<std::int16_t>(i + 1);
        s.fichierSerie = ChampFixe("DONNEES.DON", kLargeurFichierSerie);
        s.axeY2 = i == 2 ? 1 : 0;
        s.rouge = static_cast<std::int16_t>(10 * i + 1);
        s.vert = static_cast<std::int16_t>(20 * i + 2);
        s.bleu = static_cast<std::int16_t>(30 * i + 3);
        s.epaisseur = static_cast<std::int16_t>(i + 2);
        s.brosse = static_cast<std::int16_t>(i);
    }
    return g;
}

} // namespace verdane::test
