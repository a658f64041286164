#pragma once
// The hand-laid cell frame that every domain table shares, the number and duration texts, and
// the closing rule laid under a list.

#include "shell/etat/Contexte.h"

namespace verdane {

// One cell of a hand-laid row. Borders "0" none, "1" single, "2" double; colours are indexes
// of the program's palette; sizes in half-points.
struct CelluleFixe {
    Texte haut = "0", bas = "0", gauche = "0", droite = "0";
    int fond = 8;
    Texte police = "1"; // below 5000: the default table font, written back as "5006"
    int taille = 16;
    int couleur = 1;
    bool gras = false, italique = false, souligne = false, barre = false, ombre = false;
    Texte alignement = "c"; // "l", "c", "r", "j"
};

// Appends one cell to the row definition and opens its text in the row body; the caller then
// appends a blank, the text and "}\cell".
void AjouterCelluleFixe(const Etat& etat, Texte& definition, Texte& corps, CelluleFixe& cellule,
                        int bordDroit);
// The same, with the text and "}\cell" appended.
void CelluleTexte(const Etat& etat, Texte& definition, Texte& corps, CelluleFixe cellule,
                  int bordDroit, std::string_view texte);

// The number text of the domain tables.
Texte TexteNombre(const Etat& etat, float valeur, int decimales, bool videSiZero = true);
// True when negative amounts print in red: the flag of the table being rendered.
bool NegatifsEnRouge(const Etat& etat);
// The text colour of an amount: 6 when negative under the flag above, else 1.
int CouleurMontant(const Etat& etat, float valeur);

// A duration: in months ("1 an 6 mois", "2 ans", " 6 mois"), or, `enPeriodes`, a count of
// periods of `periode` months with its unit ("40 trimestre"). Zero gives "".
Texte TexteDuree(float valeur, bool enPeriodes, float periode);

// The two thin rows that close a list of total width `largeur`.
Texte FinDeTableau(const Etat& etat, int largeur);

// "15/03/2024" as "dd/mm/yy": "15/03/24"; a string that isn't a date is given trimmed.
Texte DateCourte(std::string_view date);
// The year of a date as four digits ("yyyy"), or the trimmed text when it isn't a date.
Texte AnneeDate(std::string_view date);

inline constexpr const char* kFinLigne = "\\row\\pard \\plain ";
inline constexpr const char* kFinLigneSerree = "\\row\\pard\\plain ";
inline constexpr const char* kParagraphe = "\\par \\plain ";

} // namespace verdane
