#pragma once
// The fields of a graph model in the order of the library record. One description serves the
// record's reader and writer and the text form's: a flux is told each field with its kind.
//   Chaine(texte, largeur), Entier(v), Reel(v): fields that both forms carry;
//   Compte(nbSeries): the number of series; Brosse(brosse): the last field of a series;
//   Series(series): the ten series, at their place in the record (the text puts them last);
//   Reserve(v), Reserve(texte, largeur): fields of the record that the text doesn't carry.

#include "graphs/ModeleGraph.h"

namespace verdane {

template <typename Flux, typename Serie> void ParcourirSerie(Flux& f, Serie& s) {
    f.Chaine(s.codeSerie, kLargeurCodeSerie);
    f.Chaine(s.nomSerie, kLargeurNomSerie);
    f.Entier(s.typeSerie);
    f.Chaine(s.fichierSerie, kLargeurFichierSerie);
    f.Entier(s.axeY2);
    f.Entier(s.rouge);
    f.Entier(s.vert);
    f.Entier(s.bleu);
    f.Entier(s.epaisseur);
    f.Brosse(s.brosse);
    f.Reserve(s.reserveTexte, 10);
    f.Reserve(s.reserveOctets, 6);
}

template <typename Flux, typename Rect> void ParcourirRect(Flux& f, Rect& r) {
    f.Reel(r.minX);
    f.Reel(r.maxX);
    f.Reel(r.minY);
    f.Reel(r.maxY);
}

template <typename Flux, typename Enr> void ParcourirGraphe(Flux& f, Enr& g) {
    f.Reserve(g.reserve0);
    f.Chaine(g.titre, kLargeurTitreGraph);
    f.Entier(g.typeGraph);
    f.Entier(g.legende);
    f.Compte(g.nbSeries);
    f.Entier(g.empile);
    f.Chaine(g.commentaire, kLargeurCommentaire);
    f.Series(g.series);
    f.Entier(g.inversion);
    f.Entier(g.espaceBarres);
    f.Entier(g.espaceAnnees);
    f.Entier(g.espaceSeries);
    ParcourirRect(f, g.rectTitre);
    ParcourirRect(f, g.rectPlot);
    ParcourirRect(f, g.rectLegende);
    ParcourirRect(f, g.rectNote);
    f.Reel(g.rotation);
    f.Reel(g.elevation);
    f.Entier(g.retourTitre);
    f.Entier(g.orientTitre);
    f.Reserve(g.reserve1014);
    f.Entier(g.retourLegende);
    f.Entier(g.orientNote);
    f.Reserve(g.reserve1020);
    for (auto& a : g.axes) {
        f.Chaine(a.titreAxe, kLargeurTitreAxe);
        f.Entier(a.tailleAxe);
        f.Entier(a.epaisseurAxe);
    }
    f.Entier(g.tailleTitre);
    f.Reserve(g.reserveTexte, 18);
    f.Reserve(g.reserveOctets, 6);
}

} // namespace verdane
