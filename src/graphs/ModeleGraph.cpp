#include "graphs/ModeleGraph.h"

#include "graphs/ChampsGraph.h"
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

struct Lecture {
    LecteurBinaire l;
    void Chaine(Texte& t, std::size_t n) { t = l.Chaine(n); }
    void Entier(std::int16_t& v) { v = l.I16(); }
    void Reel(float& v) { v = l.F32(); }
    void Compte(std::int16_t& v) { Entier(v); }
    void Brosse(std::int16_t& v) { Entier(v); }
    void Reserve(std::int16_t& v) { Entier(v); }
    void Reserve(Texte& t, std::size_t n) { Chaine(t, n); }
    void Series(std::array<SerieGraph, kMaxSeriesGraph>& series) {
        for (auto& s : series) ParcourirSerie(*this, s);
    }
};

struct Ecriture {
    EcrivainBinaire e;
    void Chaine(const Texte& t, std::size_t n) { e.Chaine(t, n); }
    void Entier(std::int16_t v) { e.I16(v); }
    void Reel(float v) { e.F32(v); }
    void Compte(std::int16_t v) { Entier(v); }
    void Brosse(std::int16_t v) { Entier(v); }
    void Reserve(std::int16_t v) { Entier(v); }
    void Reserve(const Texte& t, std::size_t n) { Chaine(t, n); }
    void Series(const std::array<SerieGraph, kMaxSeriesGraph>& series) {
        for (const auto& s : series) ParcourirSerie(*this, s);
    }
};

} // namespace

ModeleGraph LireEnrGraph(std::string_view octets) {
    ModeleGraph g;
    Lecture lecture{LecteurBinaire(octets)};
    ParcourirGraphe(lecture, g);
    return g;
}

std::string EcrireEnrGraph(const ModeleGraph& g) {
    Ecriture ecriture;
    ParcourirGraphe(ecriture, g);
    return ecriture.e.Octets();
}

} // namespace verdane
