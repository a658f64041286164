#include "graphs/ModeleGraph.h"

#include "utils/Binaire.h"

#include <algorithm>

namespace verdane {

Texte ChampFixe(std::string_view texte, std::size_t largeur) {
    Texte t(texte.substr(0, std::min(texte.size(), largeur)));
    t.append(largeur - t.size(), ' ');
    return t;
}

SerieGraph::SerieGraph()
    : codeSerie(ChampFixe("", kLargeurCodeSerie)), nomSerie(ChampFixe("", kLargeurNomSerie)),
      fichierSerie(ChampFixe("", kLargeurFichierSerie)), reserveTexte(ChampFixe("", 10)),
      reserveOctets(6, '\0') {}

ModeleGraph::ModeleGraph()
    : titre(ChampFixe("Sans titre", kLargeurTitreGraph)),
      commentaire(ChampFixe("", kLargeurCommentaire)), reserveTexte(ChampFixe("", 18)),
      reserveOctets(6, '\0') {
    for (auto& a : axes) a.titreAxe = ChampFixe("", kLargeurTitreAxe);
}

int NbSeriesUtiles(const ModeleGraph& g) {
    return std::clamp(static_cast<int>(g.nbSeries), 0, kMaxSeriesGraph);
}

namespace {

// One description of the layout serves the reader and the writer.
template <typename Flux, typename Rect> void ParcourirRect(Flux& f, Rect& r) {
    f.F32(r.minX);
    f.F32(r.maxX);
    f.F32(r.minY);
    f.F32(r.maxY);
}

template <typename Flux, typename Serie> void ParcourirSerie(Flux& f, Serie& s) {
    f.Chaine(s.codeSerie, kLargeurCodeSerie);
    f.Chaine(s.nomSerie, kLargeurNomSerie);
    f.I16(s.typeSerie);
    f.Chaine(s.fichierSerie, kLargeurFichierSerie);
    f.I16(s.axeY2);
    f.I16(s.rouge);
    f.I16(s.vert);
    f.I16(s.bleu);
    f.I16(s.epaisseur);
    f.I16(s.brosse);
    f.Chaine(s.reserveTexte, 10);
    f.Chaine(s.reserveOctets, 6);
}

template <typename Flux, typename Enr> void Parcourir(Flux& f, Enr& g) {
    f.I16(g.reserve0);
    f.Chaine(g.titre, kLargeurTitreGraph);
    f.I16(g.typeGraph);
    f.I16(g.legende);
    f.I16(g.nbSeries);
    f.I16(g.empile);
    f.Chaine(g.commentaire, kLargeurCommentaire);
    for (auto& s : g.series) ParcourirSerie(f, s);
    f.I16(g.inversion);
    f.I16(g.espaceBarres);
    f.I16(g.espaceAnnees);
    f.I16(g.espaceSeries);
    ParcourirRect(f, g.rectTitre);
    ParcourirRect(f, g.rectPlot);
    ParcourirRect(f, g.rectLegende);
    ParcourirRect(f, g.rectNote);
    f.F32(g.rotation);
    f.F32(g.elevation);
    f.I16(g.retourTitre);
    f.I16(g.orientTitre);
    f.I16(g.reserve1014);
    f.I16(g.retourLegende);
    f.I16(g.orientNote);
    f.I16(g.reserve1020);
    for (auto& a : g.axes) {
        f.Chaine(a.titreAxe, kLargeurTitreAxe);
        f.I16(a.tailleAxe);
        f.I16(a.epaisseurAxe);
    }
    f.I16(g.tailleTitre);
    f.Chaine(g.reserveTexte, 18);
    f.Chaine(g.reserveOctets, 6);
}

struct Lecture {
    LecteurBinaire l;
    void Chaine(Texte& t, std::size_t n) { t = l.Chaine(n); }
    void I16(std::int16_t& v) { v = l.I16(); }
    void F32(float& v) { v = l.F32(); }
};

struct Ecriture {
    EcrivainBinaire e;
    void Chaine(const Texte& t, std::size_t n) { e.Chaine(t, n); }
    void I16(std::int16_t v) { e.I16(v); }
    void F32(float v) { e.F32(v); }
};

} // namespace

ModeleGraph LireEnrGraph(std::string_view octets) {
    ModeleGraph g;
    Lecture lecture{LecteurBinaire(octets)};
    Parcourir(lecture, g);
    return g;
}

std::string EcrireEnrGraph(const ModeleGraph& g) {
    Ecriture ecriture;
    Parcourir(ecriture, g);
    return ecriture.e.Octets();
}

} // namespace verdane
