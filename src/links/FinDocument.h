#pragma once
// What the word-processor link does at the end of a creation or an update, and the conversion
// of a document of the library: each a step the creation driver or a dialog calls in turn.

#include "shell/etat/Contexte.h"

#include <optional>

namespace verdane {

// The word processor that converts documents: the linked one when this system can drive it,
// else LibreOffice when it is there; null when none can. `editeur` receives its number.
PiloteEditeur* PiloteConversion(Contexte& ctx, Editeur& editeur);

// The option "ConvertirViaOO": the result is opened in OpenOffice and saved beside itself as
// ".doc". With OpenOffice linked the document stays open there and `sansOuverture` becomes
// true; with another word processor it is closed.
void ConvertirViaOO(Contexte& ctx, const Texte& resultat, bool& sansOuverture);

// True when the result must be saved again in its own format: an update, or a result whose
// name doesn't end in ".rtf".
bool DoitResauver(bool miseAJour, const Texte& resultat);

// The save of the result in the format its name tells (".doc", ".odt", ".docx", ".pdf"...).
// `source` is the file written (in an update of a ".doc", its RTF copy), `cible` the document
// as the user named it; `affiche` tells that `source` is open in the linked word processor.
// True when saved; else `raison`, when given, receives why not.
bool ResauverResultat(Contexte& ctx, const Texte& source, const Texte& cible, bool affiche,
                      Texte* raison = nullptr);

// A result named ".doc": the RTF file of the same stem is deleted.
void SupprimerCopieRtf(const Texte& resultat);

// The end steps in their order: ConvertirViaOO when the option is on, the showing of the
// document unless `sansOuverture`, the save in the result's own format, the deletion of the
// RTF copy of a ".doc". `modele` is the file written in an update (its RTF copy for a ".doc").
// A result that doesn't end in the format its name asks is a failure, told to the user and
// kept in `conversionManquee` of the state: its RTF then takes the name "x.rtf" beside it
// (in an update of a ".doc", the RTF copy stays and the document is as it was).
void TerminerDocument(Contexte& ctx, const Texte& modele, const Texte& resultat, bool miseAJour,
                      bool sansOuverture);

// True when the end steps will convert the result without showing it (a creation, not shown,
// whose name asks another format than RTF, without "ConvertirViaOO"): the creation then keeps
// its RTF apart (`FichierSur::Fermer`) and calls `TerminerConversion`.
bool ConversionAPart(const Contexte& ctx, const Texte& resultat, bool miseAJour,
                     bool sansOuverture);

// The end steps of such a creation. `rtf`, the complete RTF under a temporary name beside the
// result, is converted to another temporary file, which is checked and only then takes the
// result's name (replacing it, or without `remplacer` only if the name is free): a kill at any
// moment leaves the old result or the new one, whole, never the RTF under the result's name.
// A failure is told and kept as by `TerminerDocument`, the RTF then taking the name "x.rtf".
void TerminerConversion(Contexte& ctx, const Texte& rtf, const Texte& resultat, bool remplacer);

// Before the update of a document: a ".doc" is first converted to an RTF copy beside it,
// after the user agrees. Gives the path to read and write (the document itself when it isn't a
// ".doc", the copy otherwise), or nothing when the update is not to go on.
std::optional<Texte> PreparerMiseAJour(Contexte& ctx, const Texte& document);

// The conversion of a document of the library to "rtf", "doc", "lwp" (and "odt", "docx",
// "pdf"): asked first, saved beside it under the new extension. True when converted.
bool ConvertirDocument(Contexte& ctx, const Texte& chemin, const Texte& format);

// The path made absolute (a word processor needs the folder): relative to the current folder.
Texte CheminComplet(const Texte& chemin);

} // namespace verdane
