#include "utils/GestFontTable.h"

namespace verdane {

const std::array<Couleur, 17>& Palette() {
    static constexpr std::array<Couleur, 17> kPalette = {{{0, 0, 0},
                                                          {0, 0, 0},
                                                          {0, 0, 255},
                                                          {0, 255, 255},
                                                          {0, 255, 0},
                                                          {255, 0, 255},
                                                          {255, 0, 0},
                                                          {255, 255, 0},
                                                          {255, 255, 255},
                                                          {0, 0, 128},
                                                          {0, 128, 128},
                                                          {0, 128, 0},
                                                          {128, 0, 128},
                                                          {128, 0, 0},
                                                          {128, 128, 0},
                                                          {128, 128, 128},
                                                          {192, 192, 192}}};
    return kPalette;
}

const std::array<const char*, 157>& PolicesConnues() {
    static constexpr std::array<const char*, 157> kPolices = {"Abadi MT Condensed Light",
                                                              "AGaramond",
                                                              "AGaramond Bold",
                                                              "Alleycat ICG",
                                                              "Andale Mono",
                                                              "Arabic Transparent",
                                                              "Arial",
                                                              "Arial Black",
                                                              "Arial Narrow",
                                                              "Arial Rounded MT Bold",
                                                              "Baskerville",
                                                              "Beesknees ITC",
                                                              "Bernhard Modern Roman",
                                                              "Binner Gothic",
                                                              "Boca Raton ICG",
                                                              "Boca Raton ICG Solid",
                                                              "Book Antiqua",
                                                              "Bookman Old Style",
                                                              "Botanical",
                                                              "Bradley Hand ITC",
                                                              "Brush Script",
                                                              "Brush Script MT",
                                                              "Calisto MT",
                                                              "Centaur",
                                                              "Century Gothic",
                                                              "Century Schoolbook",
                                                              "Chilada ICG Cuatro",
                                                              "Chilada ICG Dos",
                                                              "Chilada ICG Tres",
                                                              "Chilada ICG Uno",
                                                              "Comic Sans MS",
                                                              "Copperplate Gothic Bold",
                                                              "Copperplate Gothic Light",
                                                              "Copperplate31ab",
                                                              "Copperplate33bc",
                                                              "Courier",
                                                              "Courier New",
                                                              "Curlz MT",
                                                              "David",
                                                              "David Transparent",
                                                              "Decotura ICG",
                                                              "Decotura ICG Inline",
                                                              "Elephant",
                                                              "Eras Bold ITC",
                                                              "Eras Demi ITC",
                                                              "Eras Light ITC",
                                                              "Eras Medium ITC",
                                                              "Eras Ultra ITC",
                                                              "Fajita ICG Mild",
                                                              "Fajita ICG Picante",
                                                              "fixed",
                                                              "Fixed Miriam Transparent",
                                                              "Fixedsys",
                                                              "Franklin Gothic Condensed",
                                                              "Franklin Gothic No.2",
                                                              "Garamond",
                                                              "Georgia",
                                                              "Gill Sans",
                                                              "Gill Sans Condensed",
                                                              "Gill Sans Ultra Bold",
                                                              "Goudy",
                                                              "GulimChe",
                                                              "Haettenschweiler",
                                                              "HM Phonetic",
                                                              "Impact",
                                                              "Juice ITC",
                                                              "Letter Gothic",
                                                              "Litterbox ICG",
                                                              "Lotus Postal Barcode",
                                                              "LotusWP Box",
                                                              "LotusWP Icon",
                                                              "LotusWP Int A",
                                                              "LotusWP Int B",
                                                              "LotusWP Type",
                                                              "Lucida Console",
                                                              "Lucida Handwriting",
                                                              "Lucida Sans",
                                                              "Lucida Sans Unicode",
                                                              "Lydian",
                                                              "Marlett",
                                                              "Math A",
                                                              "Math B",
                                                              "Math C",
                                                              "Matisse ITC",
                                                              "MingLiU",
                                                              "Mini Pics Art Jam",
                                                              "Mini Pics Classic",
                                                              "Mini Pics Lil Critters",
                                                              "Mini Pics Lil Edibles",
                                                              "Mini Pics Lil Events",
                                                              "Mini Pics Lil Stuff",
                                                              "Mini Pics Lil Vehicles",
                                                              "Mini Pics Red Rock",
                                                              "Miriam",
                                                              "Miriam Fixed",
                                                              "Miriam Transparent",
                                                              "Modern",
                                                              "Monotype Corsiva",
                                                              "Monotype Sorts",
                                                              "MS Gothic",
                                                              "MS Hei",
                                                              "MS Outlook",
                                                              "MS Sans Serif",
                                                              "MS Serif",
                                                              "MS Song",
                                                              "Myriad Roman",
                                                              "News Gothic",
                                                              "News Gothic Condensed",
                                                              "News Gothic MT",
                                                              "Nimrod",
                                                              "NuptialScript",
                                                              "OCR A Extended",
                                                              "OCRA",
                                                              "Onyx",
                                                              "OpenSymbol",
                                                              "Paisley ICG 01",
                                                              "Paisley ICG 01 Alt",
                                                              "Paisley ICG 02",
                                                              "Paisley ICG 02 Alt",
                                                              "Park Avenue",
                                                              "Perpetua",
                                                              "Photina Casual Black",
                                                              "Prestige Elite",
                                                              "Rockwell",
                                                              "Rockwell Condensed",
                                                              "Rockwell Extra Bold",
                                                              "Rockwell Light",
                                                              "Rod",
                                                              "Saturday Sans ICG",
                                                              "Small Fonts",
                                                              "Snap ITC",
                                                              "Stencil",
                                                              "Symbol",
                                                              "System",
                                                              "Tahoma",
                                                              "Tekton",
                                                              "Tempus Sans ITC",
                                                              "Terminal",
                                                              "Times New Roman",
                                                              "Traditional Arabic",
                                                              "Trajan",
                                                              "Trebuchet MS",
                                                              "Ultra Condensed Sans One",
                                                              "Ultra Condensed Sans Two",
                                                              "VAG Rounded Light",
                                                              "VAG Rounded Thin",
                                                              "Verdana",
                                                              "Viner Hand ITC",
                                                              "Webdings",
                                                              "Westminster",
                                                              "Whimsy ICG",
                                                              "Whimsy ICG Heavy",
                                                              "Wide Latin",
                                                              "Wingdings",
                                                              "Wingdings 2",
                                                              "Wingdings 3",
                                                              "Wonton ICG"};
    return kPolices;
}

Texte NomPolice(int numero) {
    if (numero < kPremierePolice || numero > kDernierePolice) return "Arial";
    return PolicesConnues()[static_cast<std::size_t>(numero - kPremierePolice)];
}

Texte NumeroPolice(std::string_view nom) {
    const auto& polices = PolicesConnues();
    for (std::size_t i = 0; i < polices.size(); ++i)
        if (nom == polices[i]) return std::to_string(kPremierePolice + static_cast<int>(i));
    return std::to_string(kPoliceDefaut);
}

bool AjouterPolices(Texte& texte, std::size_t debut) {
    static constexpr std::string_view kTable = "{\\fonttbl";
    const auto p = texte.find(kTable, debut);
    if (p == Texte::npos) return false;
    Texte polices;
    polices.reserve(157 * 32);
    for (int n = kPremierePolice; n <= kDernierePolice; ++n)
        polices += "{\\f" + std::to_string(n) + "\\fnil " + NomPolice(n) + ";}";
    texte.insert(p + kTable.size(), polices);
    return true;
}

std::optional<std::int16_t> AjouterCouleurs(Texte& texte, std::size_t depart) {
    static constexpr std::string_view kTable = "{\\colortbl;";
    const auto debut = texte.find(kTable, depart);
    if (debut == Texte::npos) return std::nullopt;
    const auto fin = texte.find(";}", debut);
    if (fin == Texte::npos) return std::nullopt;
    // Counted to the end of the text, not of the table: a ";\" further on counts too.
    int decalage = 0;
    for (auto p = texte.find(";\\", debut); p != Texte::npos; p = texte.find(";\\", p + 2))
        if (decalage < 0x7FFF) ++decalage;
    Texte couleurs;
    const auto& palette = Palette();
    for (std::size_t i = 1; i < palette.size(); ++i) {
        couleurs += "\\red" + std::to_string(palette[i].rouge) + "\\green" +
                    std::to_string(palette[i].vert) + "\\blue" + std::to_string(palette[i].bleu) +
                    ";";
    }
    // Each colour ends with its ";", the last one too, so that the table still closes on ";}".
    texte.insert(fin + 1, couleurs);
    return static_cast<std::int16_t>(decalage);
}

} // namespace verdane
