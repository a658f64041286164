#pragma once
// The skinned button of the dialogs (comSkin), apart from its drawing: its properties, the
// skin data its frame hands it, and its two states. Pressed, it shows its down picture and its
// label in the down colour; released, the up picture and colour, and a click when the release
// falls on the button (its picture or its label alike: they are one surface).

#include "skin/DescriptionSkin.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace verdane::skin {

class BoutonSkin {
public:
    // Properties kept with the form.
    struct Proprietes {
        Texte Text;
        std::int32_t Fore_Color = 0;
        Texte FontName = "Sans";
        double FontSize = 9;
        bool FontBold = false;
        bool FontItalic = false;
        bool FontStrikethru = false;
        bool FontUnderline = false;
    };

    const Proprietes& Props() const { return props_; }
    // Each setter stores the value and marks the properties changed when it differs.
    void Text(std::string_view texte) { Poser(props_.Text, Texte(texte)); }
    void Texte_(std::string_view texte) { Text(texte); } // the property's second name, "Texte"
    void Fore_Color(std::int32_t c) { Poser(props_.Fore_Color, c); }
    void FontName(std::string_view nom) { Poser(props_.FontName, Texte(nom)); }
    void FontSize(double taille) { Poser(props_.FontSize, taille); }
    void FontBold(bool v) { Poser(props_.FontBold, v); }
    void FontItalic(bool v) { Poser(props_.FontItalic, v); }
    void FontStrikethru(bool v) { Poser(props_.FontStrikethru, v); }
    void FontUnderline(bool v) { Poser(props_.FontUnderline, v); }
    bool ProprietesModifiees() const { return modifiees_; }
    void ProprietesEnregistrees() { modifiees_ = false; }

    // Skin data. The text "x,y,w,h" is split at its ","; the split stops at the first missing
    // ",", and the strings not reached keep their values.
    void Pic1_Info(std::string_view texte) { Decouper(texte, pic1_); }
    void Pic2_Info(std::string_view texte) { Decouper(texte, pic2_); }
    const std::array<Texte, 4>& Pic1() const { return pic1_; }
    const std::array<Texte, 4>& Pic2() const { return pic2_; }
    Texte MaxWidth;
    Texte MaxHeight;
    std::int32_t lblColorUp = 0;
    Texte lblColorDown;
    Texte lblGras;
    // Takes what the skin says for its buttons.
    void RecevoirSkin(const DescriptionSkin& skin);

    // The source rectangles of the up and down pictures; nothing while a string isn't a number
    // or a size is not above 0.
    std::optional<Rectangle> SourceHaut() const { return Source(pic1_); }
    std::optional<Rectangle> SourceBas() const { return Source(pic2_); }
    // The greatest size of the picture; 0 where none is set.
    int LargeurMax() const;
    int HauteurMax() const;

    // State.
    void Appuyer() { enfonce_ = true; }
    // True when a click is to be raised: the button was pressed and the release is on it.
    bool Relacher(bool surLeBouton) {
        const bool clic = enfonce_ && surLeBouton;
        enfonce_ = false;
        return clic;
    }
    bool Enfonce() const { return enfonce_; }
    // The label's colour and weight in the current state.
    std::int32_t CouleurLibelle() const;
    bool LibelleGras() const;

private:
    template <class T> void Poser(T& champ, T valeur) {
        if (champ == valeur) return;
        champ = std::move(valeur);
        modifiees_ = true;
    }
    static void Decouper(std::string_view texte, std::array<Texte, 4>& sortie);
    static std::optional<Rectangle> Source(const std::array<Texte, 4>& info);

    Proprietes props_;
    bool modifiees_ = false;
    std::array<Texte, 4> pic1_;
    std::array<Texte, 4> pic2_;
    bool couleurHautDonnee_ = false;
    bool enfonce_ = false;
};

} // namespace verdane::skin
