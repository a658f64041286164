#include "data/ValeurCode.h"

#include "data/ChargerDossier.h"
#include "data/EnrDon.h"
#include "data/FormatNombre.h"
#include "data/LectureDon.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace verdane {

namespace {

constexpr std::size_t npos = Texte::npos;

void MessageCodeInconnu(Contexte& ctx, const Texte& code) {
    ctx.utilisateur.AfficherMessage(
        {"Le code \"" + code + "\" est inconnu de l'interpréteur Verdane.",
         "Vous devez modifier en conséquence le modèle de document utilisé pour que cette erreur "
         "n'apparaisse plus.",
         "Erreur détectée :  cliquez Fermer pour continuer", ""});
}

void MessageMotErrone(Contexte& ctx, const Texte& code) {
    ctx.utilisateur.AfficherMessage(
        {"Le code \"" + code +
             "\" est erroné ( après le - ).\r\nCette portion de code ne peut "
             "être traitée.",
         "Modifiez le modèle utilisé pour que ce message d'erreur n'apparaisse plus.",
         "Erreur détectée dans le modèle", ""});
}

// A crop number as the plain conversion of a float writes it: 3 gives "3".
Texte TexteNumero(float n) {
    char tampon[64];
    const auto r = std::to_chars(tampon, tampon + sizeof tampon, n);
    return r.ec == std::errc() ? Texte(tampon, r.ptr) : Texte("0");
}

// A module number on two digits, "0" put before a number below 10.
Texte DeuxChiffres(int n) {
    const Texte t = std::to_string(n);
    return (n >= 0 && n < 10) ? "0" + t : t;
}

// The dossier folder of a slot; empty when the slot names no dossier.
Texte DossierDuSlot(const Etat& etat, int slot) {
    if (slot < 0 || slot >= static_cast<int>(etat.RepDossier.size())) return {};
    const auto i = static_cast<std::size_t>(slot);
    if (Rogner(etat.RepDossier[i]).empty() || Rogner(etat.NomDossier[i]).empty()) return {};
    return DossierComplet(etat, slot);
}

// The "-" that matters: the one at `posTiret` (from 1) when it is one, else the second "-" of
// the code if there is one, else the first.
std::size_t TrouverTiret(const Texte& code, long long posTiret) {
    if (posTiret >= 1 && static_cast<std::size_t>(posTiret) <= code.size() &&
        code[static_cast<std::size_t>(posTiret - 1)] == '-')
        return static_cast<std::size_t>(posTiret - 1);
    const auto premier = code.find('-');
    if (premier == npos) return npos;
    const auto second = code.find('-', premier + 1);
    return second == npos ? premier : second;
}

char Car(const Texte& t, std::size_t i) {
    return i < t.size() ? Minuscule(t[i]) : '\0';
}

Texte Apres(const Texte& t, std::size_t i) {
    return i < t.size() ? t.substr(i) : Texte();
}

// Decimals of a series: those asked, else the digits behind the first ":" of its code; AUTO
// when the record tells none.
std::int16_t DecimalesSerie(std::int16_t demandees, const EnrDon& enr) {
    if (demandees != -1) return demandees;
    const auto deuxPoints = enr.code.find(':');
    if (deuxPoints == npos) return 7;
    const auto d = EntierStrict(Rogner(enr.code.substr(deuxPoints + 1)));
    return (d && *d >= 0 && *d <= 7) ? static_cast<std::int16_t>(*d) : std::int16_t{7};
}

// The statistics over the study years: "min", "max", "som", "moy", with a trailing "a" for the
// year of the least or greatest value.
Texte Statistique(Contexte& ctx, const Texte& mot, bool annee, const EnrDon& enr,
                  std::int16_t& decimales) {
    const Etat& e = ctx.etat;
    const int nb = std::clamp<int>(e.nbAnEtude, 0, 13);
    float meilleure = enr.valeur[1];
    int indice = 1;
    double somme = enr.valeur[1];
    for (int i = 2; i <= nb; ++i) {
        const float v = enr.valeur[static_cast<std::size_t>(i)];
        somme += v;
        if ((mot == "min" && v < meilleure) || (mot == "max" && v > meilleure)) {
            meilleure = v;
            indice = i;
        }
    }
    if (annee) return std::to_string(e.anneeDebut + indice - 1);
    float valeur = meilleure;
    if (mot == "som") valeur = static_cast<float>(somme);
    if (mot == "moy") valeur = static_cast<float>(nb > 0 ? somme / nb : somme);
    decimales = DecimalesSerie(decimales, enr);
    return FormatNombre(valeur, decimales, false, e.marques);
}

} // namespace

Texte ValeurCode(Contexte& ctx, Texte& code, int posTiret, std::int16_t& annee,
                 std::int16_t& decimales, int dossier) {
    const Texte original = code;
    const EtatDomaine& dom = ctx.etat.domaine;
    const Texte repertoire = DossierDuSlot(ctx.etat, dossier);
    Texte fichier;
    std::size_t tiret = TrouverTiret(code, posTiret);
    std::optional<long long> enregistrement; // the record named before the "-" of an "@" code

    if (!code.empty() && code[0] == '@') {
        // 1. The file of the crop, perennial crop or animal module being expanded.
        code.erase(0, 1);
        char lettre = Car(code, 0);
        if (lettre == 'c' || lettre == 'p' || lettre == 'a') {
            code.erase(0, 1);
            if (tiret != npos) tiret = tiret >= 2 ? tiret - 2 : npos;
        } else {
            lettre = 'c';
            if (tiret != npos) tiret = tiret >= 1 ? tiret - 1 : npos;
        }
        if (tiret == npos || tiret >= code.size() || code[tiret] != '-')
            tiret = TrouverTiret(code, 0);
        if (lettre == 'c')
            fichier = "Cult" + TexteNumero(dom.numCulture) + ".don";
        else if (lettre == 'p')
            fichier = "CltP" + TexteNumero(dom.numCulturePerenne) + ".don";
        else
            fichier = "AL" + DeuxChiffres(dom.numModuleAnimal) + "AL.don";
        // Nothing before the "-" names no record: the one after the word is read then.
        if (tiret != npos && tiret > 0 && Car(code, tiret + 1) != 'c')
            enregistrement = ValEntier(code.substr(0, tiret));
    } else {
        // 2. "<file>+<tag>-...".
        const auto plus = code.find('+');
        if (plus == npos || tiret == npos) {
            MessageCodeInconnu(ctx, original);
            return {};
        }
        fichier = code.substr(0, plus);
    }
    if (tiret == npos) {
        MessageCodeInconnu(ctx, original);
        return {};
    }

    // 3. A missing or empty file gives nothing, and says nothing. A record read tells it; the
    // answers that read no record look at the file first.
    if (repertoire.empty()) return {};
    const Texte chemin = repertoire + fichier;
    FichierDon don(ctx.etat.fichiers, chemin);

    const Texte suite = Apres(code, tiret + 1);
    const char premier = Car(suite, 0);
    std::size_t prefixe = 0; // characters after the "-" before the record number
    if (annee == -1) {
        // 4. What the first character after the "-" asks for.
        switch (premier) {
        case 'i':
        case 'u': {
            // 7. The label, or the unit behind its "|".
            const auto enr =
                don.Lire(enregistrement ? *enregistrement : ValEntier(Apres(suite, 1)));
            if (!enr) return {};
            const auto barre = enr->libelle.find('|');
            if (premier == 'i') return Rogner(Minuscules(enr->libelle.substr(0, barre)));
            return barre == npos ? Texte() : Rogner(enr->libelle.substr(barre + 1));
        }
        case 'c':
            return don.Present() ? dom.uniteCulture : Texte();
        case 'n':
            return don.Present() ? Rogner(dom.libelleCulture) : Texte();
        case 'p':
            if (!don.Present()) return {};
            return Car(suite, 1) == 'c' ? dom.uniteCulturePerenne
                                        : Rogner(dom.libelleCulturePerenne);
        case 'a':
            if (!don.Present() || Car(suite, 1) == 'c') return {};
            return Rogner(dom.libelleModuleAnimal);
        case 'm':
        case 's': {
            // 6. Statistics over the study years.
            const Texte mot = Minuscules(suite.substr(0, 3));
            if (mot != "min" && mot != "max" && mot != "som" && mot != "moy") {
                if (!don.Present()) return {};
                MessageMotErrone(ctx, original);
                return {};
            }
            const bool anneeVoulue = Car(suite, 3) == 'a';
            const auto enr = don.Lire(
                enregistrement ? *enregistrement : ValEntier(Apres(suite, anneeVoulue ? 4 : 3)));
            if (!enr) return {};
            return Statistique(ctx, mot, anneeVoulue, *enr, decimales);
        }
        default: {
            // The year: one digit when its "a" stands right behind it, else two.
            const bool unChiffre = Car(suite, 1) == 'a';
            prefixe = unChiffre ? 2 : 3;
            const long long y = ValEntier(suite.substr(0, unChiffre ? 1 : 2));
            annee = static_cast<std::int16_t>(std::clamp<long long>(y, -1, 99));
            break;
        }
        }
    }

    // 5. The value of the year.
    if (annee < 0 || annee >= static_cast<int>(EnrDon::kNbValeurs)) return {};
    const auto enr = don.Lire(enregistrement ? *enregistrement : ValEntier(Apres(suite, prefixe)));
    if (!enr) return {};
    decimales = DecimalesSerie(decimales, *enr);
    return FormatNombre(enr->valeur[static_cast<std::size_t>(annee)], decimales, false,
                        ctx.etat.marques);
}

namespace {

struct CodeSerie {
    Texte tag;
    long long enregistrement = 0;
    std::optional<long long> k; // behind "!A"
};

CodeSerie AnalyserSerie(Texte code) {
    CodeSerie s;
    const auto marque = TrouverSansCasse(code, "!A");
    if (marque != npos) {
        s.k = ValEntier(code.substr(marque + 2));
        code.erase(marque);
    }
    const auto tiret = code.find('-');
    s.tag = Rogner(code.substr(0, tiret));
    s.enregistrement = tiret == npos ? 0 : ValEntier(code.substr(tiret + 1));
    return s;
}

// The file of a series tag in the current dossier; "AL" is the module being expanded.
Texte FichierSerie(const Etat& etat, const Texte& tag) {
    const Texte t =
        EgalSansCasse(tag, "AL") ? "AL" + DeuxChiffres(etat.domaine.numModuleAnimal) + "AL" : tag;
    return DossierComplet(etat, 0) + t + ".don";
}

} // namespace

float ValeurSerie(Contexte& ctx, const Texte& code, int annee, bool tableauDebuteAnnee1) {
    const Etat& e = ctx.etat;
    const CodeSerie s = AnalyserSerie(code);
    int indice = annee;
    if (s.k) {
        if (*s.k == -1 && tableauDebuteAnnee1) {
            ctx.utilisateur.AfficherMessage(
                {"Erreur de conception du modèle de tableau en cours d'interprétation :\r\n"
                 "Une formule de calcul demande à ce que les valeurs d'une ligne débute à "
                 "NumAnnee-1\r\npour un tableau qui débute déjà à l'année début ! Modifier le "
                 "modèle.",
                 "", "Erreur détectée dans le modèle", ""});
            return 0.0f;
        }
        indice = *s.k == -1 ? annee - 1 : static_cast<int>(std::clamp<long long>(*s.k, -1, 99));
    }
    if (Rogner(e.RepDossier[0]).empty() || Rogner(e.NomDossier[0]).empty()) {
        ctx.utilisateur.AfficherMessage(
            {"Veuillez préalablement sélectionner un dossier Marlo dans le menu \"CREATION DOC\" "
             "-> \"GENERER\" -> bouton \"Dossier\", afin de pouvoir récupérer les valeurs des "
             "fichiers .DON du dossier ! Merci.",
             "", "Dossier Marlo non sélectionné !", ""});
        return 0.0f;
    }
    if (indice < 0 || indice >= static_cast<int>(EnrDon::kNbValeurs)) return 0.0f;
    const auto enr =
        LireEnregistrementDon(ctx.etat.fichiers, FichierSerie(e, s.tag), s.enregistrement);
    return enr ? enr->valeur[static_cast<std::size_t>(indice)] : 0.0f;
}

Texte LibelleSerie(Contexte& ctx, const Texte& code) {
    const Etat& e = ctx.etat;
    const CodeSerie s = AnalyserSerie(code);
    const Texte defaut = "Enregistrement n°" + std::to_string(s.enregistrement) + " de " + s.tag;
    if (Rogner(e.RepDossier[0]).empty() || Rogner(e.NomDossier[0]).empty()) return defaut;
    const auto enr =
        LireEnregistrementDon(ctx.etat.fichiers, FichierSerie(e, s.tag), s.enregistrement);
    if (!enr) return defaut;
    const Texte libelle = Rogner(enr->libelle);
    if (libelle.empty() || libelle[0] == '\0') return defaut;
    return libelle;
}

Texte FamilleDonnee(const Texte& fichier) {
    const Texte nom = NomFichier(fichier);
    Texte tag = Majuscules(nom.substr(0, nom.find('.')));
    if (tag == "VLVB")
        tag = "VL";
    else if (tag == "OL")
        tag = "OV";
    else if (tag == "PRIANI")
        tag = "VA";
    else if (tag == "PRICULT")
        tag = "CULT";
    else if (tag == "RESBIS")
        tag = "RES";
    static constexpr std::string_view kFamilles[] = {"DPU",    "CH",   "CLTP", "IMMORES",
                                                     "OV",     "PORC", "RES",  "RESDIV",
                                                     "RESSAI", "VA",   "VL",   "CULT"};
    for (auto f : kFamilles)
        if (tag == f) return tag;
    return "redrep";
}

} // namespace verdane
