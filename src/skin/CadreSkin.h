#pragma once
// The skinned frame of a window, whatever draws it: the pieces to draw at the window's current
// size, the title cut to its label, the title buttons pressed under the mouse, the title area
// that moves the window, and the small system menu with the window's states.

#include "skin/DescriptionSkin.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace verdane::skin {

struct Piece {
    Rectangle destination;
    Rectangle source;
};

struct DessinCadre {
    std::vector<Piece> pieces;       // the draw list, in order
    std::optional<Rectangle> titre;  // where the title label stands
    std::vector<Piece> boutons;      // the title buttons, each by its state
    std::vector<int> numerosBoutons; // the button of each piece of `boutons`
};

enum class EtatFenetre { Normale, Reduite, Agrandie };

// Entries of the system menu, in their order; a separator stands before "mEnd".
struct EntreeMenu {
    const char* cle;
    const char* libelle;
};
inline constexpr EntreeMenu kMenuSysteme[] = {
    {"mRestaurer", "Restaurer"}, {"mMin", "Réduire"}, {"mMax", "Agrandir"}, {"mEnd", "Fermer"}};

// What a release of the mouse on the title buttons asks for.
enum class ActionTitre { Aucune, Menu, Reduire, Agrandir, Restaurer, Fermer };

class CadreSkin {
public:
    explicit CadreSkin(const DescriptionSkin& skin) : skin_(skin) {}

    // The pieces for a window of this size, the title buttons in their current state.
    DessinCadre Dessin(int largeur, int hauteur) const;

    // Hit test on a mouse event: with the left button down, the button under the mouse shows
    // pressed and the others up; without it, all show up. True when a picture changes.
    bool Survol(bool gauche, int x, int y, int largeur, int hauteur);
    // The release of the left button: the action of the button it was pressed on and is still
    // over; every button shows up again.
    ActionTitre Relacher(int x, int y, int largeur, int hauteur, EtatFenetre etat);
    bool Enfonce(int bouton) const { return enfonce_ == bouton; }

    // The title button under the point, or -1.
    int BoutonSous(int x, int y, int largeur, int hauteur) const;
    // In the title area and on no button: a press there moves the window.
    bool DansTitre(int x, int y, int largeur, int hauteur) const;

    // The state an entry of the system menu leads to; nothing when it changes nothing.
    // "mEnd" sets the ended flag and leaves the state.
    std::optional<EtatFenetre> ActionMenu(std::string_view cle, EtatFenetre etat);
    bool Termine() const { return termine_; }
    // The window shows again: not ended any more.
    void Rouvrir() { termine_ = false; }

    // The smallest size the window may take, in whole pixels.
    int LargeurMin() const;
    int HauteurMin() const;

    const DescriptionSkin& Skin() const { return skin_; }

private:
    const DescriptionSkin& skin_;
    int enfonce_ = -1;
    bool termine_ = false;
};

// The title as it fits in `largeurMax`, measured by `mesure`: cut and ended with "..." when too
// wide, "..." alone when not even one letter fits with it.
Texte CouperTitre(std::string_view titre, int largeurMax,
                  const std::function<int(std::string_view)>& mesure);

} // namespace verdane::skin
