#include "library/ComposeurCode.h"

#include "tables/Formules.h"
#include "utils/Chaines.h"

#include <string>

namespace verdane {

namespace {

constexpr int kPremiereAnnee = 4; // index of the study years in the value list
constexpr int kDerniereAnnee = 13;

Texte TexteAnnee(int annee) {
    if (annee == 0) return "pour l'année début";
    if (annee == 1) return "pour la 1ère année";
    return "pour la " + std::to_string(annee) + "e année";
}

// Puts `insere` into `texte` just behind position `pos` (from 0).
Texte InsererApres(const Texte& texte, std::size_t pos, const Texte& insere) {
    return texte.substr(0, pos + 1) + insere + texte.substr(pos + 1);
}

} // namespace

std::vector<Texte> ComposeurCode::ListeValeurs() {
    std::vector<Texte> liste = {"Somme de la série", "Moyenne de la série",
                                "Valeur minimale de la série", "Valeur maximale de la série"};
    liste.push_back("Année début");
    for (int n = 1; n <= kDerniereAnnee; ++n)
        liste.push_back(n == 1 ? Texte("1ère année") : std::to_string(n) + "e année");
    return liste;
}

std::vector<Texte> ComposeurCode::ListeAnMinMax() {
    return {"Année de la valeur minimale", "Année de la valeur maximale"};
}

std::vector<Texte> ComposeurCode::ListeDecimales() {
    return {"0", "1", "2", "3", "4", "5", "6", "AUTO"};
}

Texte ComposeurCode::LettreFamille(FamilleInsertion famille) {
    switch (famille) {
    case FamilleInsertion::CultPer:
        return "p";
    case FamilleInsertion::AliBani:
        return "a";
    case FamilleInsertion::Classic:
    case FamilleInsertion::Culture:
        break;
    }
    return "";
}

Texte ComposeurCode::Mot(const ChoixDonnee& choix) {
    switch (choix.genre) {
    case GenreValeur::Intitule:
        return "i";
    case GenreValeur::Unite:
        return "u";
    case GenreValeur::InfoGene:
        // The reader's words: "c" / "n" for a crop, "pc" / "p" for a perennial crop, "ac" /
        // "a" for an animal activity (unit / label).
        if (choix.famille == FamilleInsertion::CultPer) return choix.entreeUnite ? "pc" : "p";
        if (choix.famille == FamilleInsertion::AliBani) return choix.entreeUnite ? "ac" : "a";
        return choix.entreeUnite ? "c" : "n";
    case GenreValeur::AnneeVal:
        return choix.indexAnMinMax == 1 ? "maxa" : "mina";
    case GenreValeur::Valeur:
        break;
    }
    switch (choix.indexValeur) {
    case 0:
        return "som";
    case 1:
        return "moy";
    case 2:
        return "min";
    case 3:
        return "max";
    default:
        return std::to_string(std::max(choix.indexValeur - kPremiereAnnee, 0)) + "a";
    }
}

Texte ComposeurCode::CodeDonnee(const ChoixDonnee& choix) {
    Texte code = choix.cle.substr(0, choix.cle.find(':'));
    if (code.empty()) return {};
    if (const auto arobase = code.find('@'); arobase != Texte::npos)
        code = InsererApres(code, arobase, LettreFamille(choix.famille) + "-");
    const auto premier = code.find('-');
    const auto second = premier == Texte::npos ? Texte::npos : code.find('-', premier + 1);
    const auto tiret = second != Texte::npos ? second : premier;
    const Texte mot = Mot(choix);
    code = tiret == Texte::npos ? code + mot : InsererApres(code, tiret, mot);
    if (choix.genre == GenreValeur::Valeur || choix.genre == GenreValeur::AnneeVal)
        code += ":" + std::to_string(choix.decimales);
    return code;
}

Texte ComposeurCode::EnClair(const Texte& nomSerie, const ChoixDonnee& choix) {
    const Texte nom = Rogner(nomSerie);
    switch (choix.genre) {
    case GenreValeur::Intitule:
        return nom + " : intitulé de la série";
    case GenreValeur::Unite:
        return nom + " : unité de la série";
    case GenreValeur::InfoGene:
        return nom;
    case GenreValeur::AnneeVal:
        return nom + " : année de la valeur " +
               (choix.indexAnMinMax == 1 ? "maximale" : "minimale");
    case GenreValeur::Valeur:
        break;
    }
    static const char* const kMots[] = {"somme de la série", "moyenne de la série",
                                        "minimale de la série", "maximale de la série"};
    if (choix.indexValeur >= 0 && choix.indexValeur < kPremiereAnnee)
        return nom + " : " + kMots[choix.indexValeur];
    return nom + " " + TexteAnnee(std::max(choix.indexValeur - kPremiereAnnee, 0));
}

Texte ComposeurCode::CodeChamp(const ChampDonnee& champ, int suffixe) {
    if (champ.suffixe == SuffixeChamp::Aucun) return champ.code;
    return champ.code + std::to_string(suffixe);
}

bool ComposeurCode::FormuleHorsTableauCorrecte(const Texte& formule) {
    const Texte texte = RemplacerExact(formule, "_", " ");
    for (std::size_t lg = texte.find("LG"); lg != Texte::npos; lg = texte.find("LG", lg + 2)) {
        // A line of a table (`LG`n, or `LG` alone) means nothing outside one.
        if (lg + 2 >= texte.size() || texte[lg + 2] != '(') return false;
        const auto ferme = texte.find(')', lg + 3);
        if (ferme == Texte::npos) return false;
        if (texte.substr(lg + 3, ferme - lg - 3).find('-') == Texte::npos) return false;
        lg = ferme - 1;
    }
    return true;
}

std::optional<Texte> ComposeurCode::CodeFormule(Contexte& ctx, int annee, const Texte& formule,
                                                int decimales) {
    const Texte texte = RognerTout(formule);
    if (texte.empty()) {
        ctx.utilisateur.AfficherMessage(
            {"La formule n'a pas été renseignée !", "", "Formule erronée.", ""});
        return std::nullopt;
    }
    if (!FormuleHorsTableauCorrecte(texte)) {
        // The substitution of a formula outside a table tells the fault.
        SubstituerFormule(ctx, texte, kColonneHorsTableau);
        return std::nullopt;
    }
    return "formule:" + std::to_string(annee) + "a:" + texte + ":" + std::to_string(decimales);
}

} // namespace verdane
