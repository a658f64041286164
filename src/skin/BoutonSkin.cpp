#include "skin/BoutonSkin.h"

namespace verdane::skin {

namespace {

bool Vrai(std::string_view t) {
    return t == "true" || t == "-1" || t == "1" || t == "vrai";
}

int Entier(std::string_view t) {
    const auto n = NombreSkin(t);
    return n && *n > 0 && *n <= kBorneValeur ? static_cast<int>(*n) : 0;
}

} // namespace

void BoutonSkin::Decouper(std::string_view texte, std::array<Texte, 4>& sortie) {
    for (std::size_t i = 0; i < 4; ++i) {
        const auto virgule = texte.find(',');
        if (virgule == std::string_view::npos) {
            // The last string read runs to the end; those behind keep their values.
            sortie[i] = texte;
            return;
        }
        sortie[i] = texte.substr(0, virgule);
        texte.remove_prefix(virgule + 1);
    }
}

std::optional<Rectangle> BoutonSkin::Source(const std::array<Texte, 4>& info) {
    int v[4];
    for (std::size_t i = 0; i < 4; ++i) {
        const auto n = NombreSkin(info[i]);
        if (!n || *n < -kBorneValeur || *n > kBorneValeur) return std::nullopt;
        v[i] = static_cast<int>(*n);
    }
    if (v[2] <= 0 || v[3] <= 0) return std::nullopt;
    return Rectangle{v[0], v[1], v[2], v[3]};
}

void BoutonSkin::RecevoirSkin(const DescriptionSkin& skin) {
    const auto& b = skin.bouton;
    if (!b.imageHaut.empty()) Pic1_Info(b.imageHaut);
    if (!b.imageBas.empty()) Pic2_Info(b.imageBas);
    MaxWidth = b.largeurMax;
    MaxHeight = b.hauteurMax;
    if (const auto n = NombreSkin(b.couleurHaut)) {
        lblColorUp = static_cast<std::int32_t>(*n);
        couleurHautDonnee_ = true;
    }
    lblColorDown = b.couleurBas;
    lblGras = b.gras;
}

int BoutonSkin::LargeurMax() const {
    return Entier(MaxWidth);
}
int BoutonSkin::HauteurMax() const {
    return Entier(MaxHeight);
}

std::int32_t BoutonSkin::CouleurLibelle() const {
    if (enfonce_) {
        if (const auto n = NombreSkin(lblColorDown)) return static_cast<std::int32_t>(*n);
    }
    return couleurHautDonnee_ ? lblColorUp : props_.Fore_Color;
}

bool BoutonSkin::LibelleGras() const {
    return props_.FontBold || Vrai(lblGras);
}

} // namespace verdane::skin
