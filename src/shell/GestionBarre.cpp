#include "shell/GestionBarre.h"

#include "utils/Chaines.h"

#include <cmath>

namespace verdane {

namespace {

constexpr std::array<DefinitionMenu, 8> kMenus{{
    {"OPENDOC", "FrmDocument", 2580, "CLOSEDOC"},
    {"OPENINS", "frmInsertion", 2830, "CLOSEINS"},
    {"OPENCREER", "FrmGenerer", 1565, "CLOSECREER"},
    {"OPENMAJ", "FrmMajDocRes", 1515, "CLOSEMAJ"},
    {"OPENOUTI", "FrmOutils", 1905, "CLOSEOUTI"},
    {"OPENPROP", "Frmoptions", 4630, "CLOSEPROP"},
    {"OPENAIDE", "FrmAide", 3150, "CLOSEAIDE"},
    {"OPENMARLO", "FrmAide", 3915, "CLOSEAIDE"},
}};

constexpr std::array<int, kNbOnglets> kGauches{210, 2050, 3700, 5670, 7480, 8790};

std::size_t Rang(int index) {
    return static_cast<std::size_t>(index < 0 ? 0 : index >= kNbOnglets ? kNbOnglets - 1 : index);
}

} // namespace

const DefinitionMenu& Definition(Menu menu) {
    return kMenus[static_cast<std::size_t>(menu)];
}

std::optional<std::pair<Menu, bool>> MenuDuJeton(std::string_view jeton) {
    const Texte j = Majuscules(jeton);
    for (std::size_t i = 0; i < kMenus.size(); ++i) {
        if (j == kMenus[i].ouverture) return std::pair{static_cast<Menu>(i), false};
        if (j == kMenus[i].fermeture) return std::pair{static_cast<Menu>(i), true};
    }
    return std::nullopt;
}

Menu MenuOnglet(int index) {
    return static_cast<Menu>(Rang(index));
}
int GaucheOnglet(int index) {
    return kGauches[Rang(index)];
}

int TwipsVersPixels(int twips, double dpi) {
    return static_cast<int>(std::lround(twips * dpi / 1440.0));
}
int PixelsVersTwips(int pixels, double dpi) {
    return dpi <= 0 ? 0 : static_cast<int>(std::lround(pixels * 1440.0 / dpi));
}

bool GestionBarre::CliquerOnglet(int index, FormeDeroulante& forme) {
    SelectionnerOnglet(index);
    if (forme.Visible() && forme.Hauteur() > 0) return false;
    Ouvrir(MenuOnglet(index), false, forme, GaucheOnglet(index));
    return true;
}

void GestionBarre::Ouvrir(Menu menu, bool marlo, FormeDeroulante& forme, int gaucheTwips) {
    const DefinitionMenu& d = Definition(marlo ? Menu::AideMarlo : menu);
    jeton_.clear();
    cible_ = d.hauteur;
    forme.Placer(gaucheTwips);
    // The form that moved before is abandoned where it stands.
    forme_ = &forme;
    jeton_ = d.ouverture;
    forme.Montrer();
}

void GestionBarre::PoserJeton(std::string_view jeton, FormeDeroulante& forme) {
    forme_ = &forme;
    jeton_ = Majuscules(jeton);
    if (const auto m = MenuDuJeton(jeton_); m && !m->second) cible_ = Definition(m->first).hauteur;
}

void GestionBarre::Tic() {
    if (jeton_.empty() || forme_ == nullptr) return;
    const auto m = MenuDuJeton(jeton_);
    if (!m) return;
    FormeDeroulante& f = *forme_;
    if (!m->second) {
        const int h = f.Hauteur() + kPasOuverture;
        if (cible_ - h > kPasOuverture / 2) {
            f.PoserHauteur(h);
        } else {
            f.PoserHauteur(cible_);
            jeton_.clear();
        }
        return;
    }
    if (f.Hauteur() >= kPasFermeture) {
        f.PoserHauteur(f.Hauteur() - kPasFermeture);
    } else {
        jeton_.clear();
        f.PoserHauteur(0);
        f.Retirer();
    }
}

void GestionBarre::SelectionnerOnglet(int index) {
    DeselectionnerOnglets();
    onglets_[Rang(index)] = true;
    pieces3_ = Rang(index) == 3;
}

void GestionBarre::DeselectionnerOnglets() {
    onglets_.fill(false);
    pieces3_ = false;
}

bool GestionBarre::OngletSelectionne(int index) const {
    return index >= 0 && index < kNbOnglets && onglets_[static_cast<std::size_t>(index)];
}

} // namespace verdane
