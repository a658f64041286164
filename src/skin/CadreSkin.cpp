#include "skin/CadreSkin.h"

#include <cmath>

namespace verdane::skin {

DessinCadre CadreSkin::Dessin(int l, int h) const {
    DessinCadre d;
    d.pieces.reserve(skin_.traces.size());
    for (const auto& t : skin_.traces) {
        Piece p{t.Destination(l, h), t.Source(l, h)};
        if (!p.destination.Vide() && !p.source.Vide()) d.pieces.push_back(p);
    }
    if (skin_.titre.position) {
        const auto& e = *skin_.titre.position;
        d.titre =
            Rectangle{e[0].Valeur(l, h), e[1].Valeur(l, h), e[2].Valeur(l, h), e[3].Valeur(l, h)};
    }
    for (int i = 0; i < kNbBoutonsTitre; ++i) {
        const auto& haut = skin_.boutons[static_cast<std::size_t>(i)];
        if (!haut) continue;
        const auto& bas = skin_.boutonsEnfonces[static_cast<std::size_t>(i)];
        const Trace& t = (enfonce_ == i && bas) ? *bas : *haut;
        // The pressed picture stands where the up one does.
        Piece p{haut->Destination(l, h), t.Source(l, h)};
        if (p.destination.Vide() || p.source.Vide()) continue;
        d.boutons.push_back(p);
        d.numerosBoutons.push_back(i);
    }
    return d;
}

int CadreSkin::BoutonSous(int x, int y, int l, int h) const {
    for (int i = 0; i < kNbBoutonsTitre; ++i) {
        const auto& b = skin_.boutons[static_cast<std::size_t>(i)];
        if (b && b->Destination(l, h).Contient(x, y)) return i;
    }
    return -1;
}

bool CadreSkin::DansTitre(int x, int y, int l, int h) const {
    return y >= 0 && y < skin_.hauteurTitre && x >= 0 && x < l && BoutonSous(x, y, l, h) < 0;
}

bool CadreSkin::Survol(bool gauche, int x, int y, int l, int h) {
    const int avant = enfonce_;
    enfonce_ = gauche ? BoutonSous(x, y, l, h) : -1;
    return avant != enfonce_;
}

ActionTitre CadreSkin::Relacher(int x, int y, int l, int h, EtatFenetre etat) {
    const int bouton = enfonce_;
    enfonce_ = -1;
    if (bouton < 0 || BoutonSous(x, y, l, h) != bouton) return ActionTitre::Aucune;
    switch (bouton) {
    case kBoutonMenu:
        return ActionTitre::Menu;
    case kBoutonReduire:
        return ActionTitre::Reduire;
    case kBoutonAgrandir:
        return etat == EtatFenetre::Normale ? ActionTitre::Agrandir : ActionTitre::Restaurer;
    default:
        return ActionTitre::Fermer;
    }
}

std::optional<EtatFenetre> CadreSkin::ActionMenu(std::string_view cle, EtatFenetre etat) {
    if (cle == "mRestaurer")
        return etat != EtatFenetre::Normale ? std::optional(EtatFenetre::Normale) : std::nullopt;
    if (cle == "mMin") return EtatFenetre::Reduite;
    if (cle == "mMax")
        return etat == EtatFenetre::Normale ? std::optional(EtatFenetre::Agrandie) : std::nullopt;
    if (cle == "mEnd") termine_ = true;
    return std::nullopt;
}

int CadreSkin::LargeurMin() const {
    return static_cast<int>(std::ceil(skin_.largeurMin));
}
int CadreSkin::HauteurMin() const {
    return static_cast<int>(std::ceil(skin_.hauteurMin));
}

Texte CouperTitre(std::string_view titre, int largeurMax,
                  const std::function<int(std::string_view)>& mesure) {
    if (mesure(titre) <= largeurMax) return Texte(titre);
    // The longest start that fits with "...", found by halves: widths grow with the length.
    std::size_t bas = 0, haut = titre.size();
    while (bas < haut) {
        const std::size_t milieu = (bas + haut + 1) / 2;
        if (mesure(Texte(titre.substr(0, milieu)) + "...") <= largeurMax)
            bas = milieu;
        else
            haut = milieu - 1;
    }
    Texte debut(titre.substr(0, bas));
    while (!debut.empty() && debut.back() == ' ') debut.pop_back();
    return debut + "...";
}

} // namespace verdane::skin
