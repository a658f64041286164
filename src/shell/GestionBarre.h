#pragma once
// The bar's tabs and the roll-down of its menu forms: tokens, heights, left positions, the one
// form in motion, stepped by the roll timer.

#include "utils/Texte.h"

#include <array>
#include <optional>
#include <string_view>

namespace verdane {

// Height of the docked bar, and of the strip it keeps when it hides, in pixels.
inline constexpr int kHauteurBarre = 42;
inline constexpr int kBandeMasquee = 2;
// Steps of the roll-down, in twips, and the roll timer's period in milliseconds.
inline constexpr int kPasOuverture = 350;
inline constexpr int kPasFermeture = 300;
inline constexpr int kPeriodeDeroulement = 10;
inline constexpr int kNbOnglets = 6;

enum class Menu { Document, Insertion, Generer, MajDocRes, Outils, Options, Aide, AideMarlo };

struct DefinitionMenu {
    const char* ouverture; // token that opens it
    const char* forme;     // form name
    int hauteur;           // height when open, twips
    const char* fermeture; // token that closes it
};

const DefinitionMenu& Definition(Menu menu);
// The menu a token names, compared in upper case; the second is true for a close token.
std::optional<std::pair<Menu, bool>> MenuDuJeton(std::string_view jeton);

// Menu of tab `index` (0 to 5) and its left position on the screen, in twips.
Menu MenuOnglet(int index);
int GaucheOnglet(int index);

// Twips to pixels at `dpi` logical dots per inch (15 twips a pixel at 96).
int TwipsVersPixels(int twips, double dpi);
int PixelsVersTwips(int pixels, double dpi);

// A menu form as the roll-down sees it; heights in twips.
class FormeDeroulante {
public:
    virtual ~FormeDeroulante() = default;
    virtual int Hauteur() const = 0;
    virtual void PoserHauteur(int twips) = 0;
    virtual bool Visible() const = 0;
    // Left in twips from the left of the screen; top under the bar.
    virtual void Placer(int gaucheTwips) = 0;
    virtual void Montrer() = 0;
    // Takes the form off the screen.
    virtual void Retirer() = 0;
};

class GestionBarre {
public:
    // Click on tab `index`: selects it and rolls its menu down. False when that menu was
    // already open (visible, above 0 high): nothing changes then.
    bool CliquerOnglet(int index, FormeDeroulante& forme);
    // Rolls a menu down at `gaucheTwips` (the message form's own opening).
    void Ouvrir(Menu menu, bool marlo, FormeDeroulante& forme, int gaucheTwips);
    // A menu's close button or entry: `jeton` is its close token, `forme` the form.
    void PoserJeton(std::string_view jeton, FormeDeroulante& forme);
    // The roll timer's tick: one step of the form in motion.
    void Tic();

    const Texte& Jeton() const { return jeton_; }
    bool EnMouvement() const { return !jeton_.empty(); }
    const FormeDeroulante* FormeEnCours() const { return forme_; }

    // Tab selection: index 3, the widest, also selects its two extra label pieces.
    void SelectionnerOnglet(int index);
    void DeselectionnerOnglets();
    bool OngletSelectionne(int index) const;
    bool PiecesOnglet3Selectionnees() const { return pieces3_; }

private:
    Texte jeton_;
    int cible_ = 0;
    FormeDeroulante* forme_ = nullptr;
    std::array<bool, kNbOnglets> onglets_{};
    bool pieces3_ = false;
};

} // namespace verdane
