#include "engine/DatesCode.h"

#include "utils/Chaines.h"

#include <cmath>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <string>

namespace verdane {

namespace {

constexpr const char* kMoisCourts[] = {"Jan.",  "Fév.", "Mars", "Avr.", "Mai",  "Juin",
                                       "Juil.", "Août", "Sep.", "Oct.", "Nov.", "Déc."};
constexpr const char* kMoisLongs[] = {"janvier",   "février", "mars",     "avril",
                                      "mai",       "juin",    "juillet",  "août",
                                      "septembre", "octobre", "novembre", "décembre"};
constexpr const char* kMoisAbreges[] = {"janv.", "févr.", "mars",  "avr.", "mai",  "juin",
                                        "juil.", "août",  "sept.", "oct.", "nov.", "déc."};
constexpr const char* kJours[] = {"dimanche", "lundi",    "mardi", "mercredi",
                                  "jeudi",    "vendredi", "samedi"};

// 0 for Sunday.
int JourDeSemaine(int jour, int mois, int annee) {
    static constexpr int t[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (mois < 3) annee -= 1;
    const int n = (annee + annee / 4 - annee / 100 + annee / 400 + t[mois - 1] + jour) % 7;
    return n < 0 ? n + 7 : n;
}

Texte Deux(int n) {
    char b[16];
    std::snprintf(b, sizeof b, "%02d", n % 100 < 0 ? -(n % 100) : n % 100);
    return b;
}

Texte Quatre(int n) {
    char b[16];
    std::snprintf(b, sizeof b, "%04d", n);
    return b;
}

Texte Heure(const Instant& m, const char* separateur, bool secondes) {
    Texte t = Deux(m.heure) + separateur + Deux(m.minute);
    if (secondes) t += separateur + Deux(m.seconde);
    return t;
}

DateSimple DebutExercice(const Texte& dateDebut) {
    const auto d = LireDate(Rogner(dateDebut));
    if (!d) throw std::runtime_error("date de début d'étude illisible : " + Rogner(dateDebut));
    return *d;
}

} // namespace

Instant MaintenantSysteme() {
    return InstantLocal(std::time(nullptr));
}

Instant InstantLocal(std::time_t t) {
    std::tm tm{};
#ifdef _WIN32
    localtime_s(&tm, &t);
#else
    localtime_r(&t, &tm);
#endif
    return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

std::optional<DateSimple> LireDate(const Texte& texte) {
    int valeurs[3] = {0, 0, 0};
    std::size_t i = 0;
    for (int k = 0; k < 3; ++k) {
        std::size_t chiffres = 0;
        while (i < texte.size() && texte[i] >= '0' && texte[i] <= '9' && chiffres < 4) {
            valeurs[k] = valeurs[k] * 10 + (texte[i] - '0');
            ++i;
            ++chiffres;
        }
        if (chiffres == 0) return std::nullopt;
        if (k < 2) {
            if (i >= texte.size() || (texte[i] != '/' && texte[i] != '-' && texte[i] != '.'))
                return std::nullopt;
            ++i;
        }
    }
    if (i != texte.size()) return std::nullopt;
    DateSimple d{valeurs[0], valeurs[1], valeurs[2]};
    if (d.annee < 100) d.annee += d.annee < 30 ? 2000 : 1900;
    if (d.mois < 1 || d.mois > 12 || d.jour < 1 || d.jour > JoursDuMois(d.mois, d.annee))
        return std::nullopt;
    return d;
}

Texte MoisCourt(int mois) {
    return mois >= 1 && mois <= 12 ? kMoisCourts[mois - 1] : "";
}

std::optional<Champ> DateExercice(const Texte& code, const Texte& dateDebut) {
    if (code.empty() || code.back() < '0' || code.back() > '9') return std::nullopt;
    const Texte mot = code.substr(0, code.size() - 1);
    const int y = code.back() - '0';
    const Texte Y = std::to_string(y);
    const char* const kMots[] = {"date",     "an2Deb",   "an2Fin",   "an4Deb",  "an4Fin",
                                 "mois2Deb", "mois2Fin", "moisCDeb", "moisCFin"};
    bool connu = false;
    for (auto m : kMots) connu = connu || mot == m;
    if (!connu) return std::nullopt;

    const DateSimple depart = DebutExercice(dateDebut);
    const DateSimple debut = AjouterAnnees(depart, y - 1);
    const DateSimple finPleine = AjouterAnnees(depart, y);
    const DateSimple fin = VeilleDe(finPleine);
    const Texte clair = " écrit en clair ( abrégé si le mois fait plus de 4 lettres ).";

    if (mot == "date")
        return Champ{MoisCourt(debut.mois) + " " + std::to_string(debut.annee) + " - " +
                         MoisCourt(fin.mois) + " " + std::to_string(fin.annee),
                     "la date d'exercice " + Y + " au format suivant : " +
                         "<mois début/fin en clair> - <année début/fin sur 4 chiffres>."};
    if (mot == "an2Deb")
        return Champ{Deux(debut.annee), "l'année de début d'exercice " + Y + " sur 2 chiffres."};
    if (mot == "an2Fin")
        return Champ{Deux(finPleine.annee), "l'année de fin d'exercice " + Y + " sur 2 chiffres."};
    if (mot == "an4Deb")
        return Champ{std::to_string(debut.annee),
                     "l'année de début d'exercice " + Y + " sur 4 chiffres."};
    if (mot == "an4Fin")
        return Champ{std::to_string(finPleine.annee),
                     "l'année de fin d'exercice " + Y + " sur 4 chiffres."};
    if (mot == "mois2Deb")
        return Champ{Deux(debut.mois), "le mois de début d'exercice " + Y + " écrit en chiffres."};
    if (mot == "mois2Fin")
        return Champ{Deux(fin.mois), "le mois de fin d'exercice " + Y + " écrit en chiffres."};
    if (mot == "moisCDeb")
        return Champ{MoisCourt(debut.mois), "le mois de début d'exercice " + Y + clair};
    return Champ{MoisCourt(fin.mois), "le mois de fin d'exercice " + Y + clair};
}

Texte DateGenerale(const Instant& m) {
    return Deux(m.jour) + "/" + Deux(m.mois) + "/" + Quatre(m.annee) + " " + Heure(m, ":", true);
}

Texte DateCode(int n, const Instant& m) {
    const bool valide = m.mois >= 1 && m.mois <= 12 && m.jour >= 1 && m.jour <= 31;
    if (!valide && n <= 11) return {};
    const Texte jj = Deux(m.jour), mm = Deux(m.mois), aaaa = Quatre(m.annee), aa = Deux(m.annee);
    const Texte longue =
        std::to_string(m.jour) + " " + kMoisLongs[m.mois - 1] + " " + std::to_string(m.annee);
    switch (n) {
    case 0:
        return Texte(kJours[JourDeSemaine(m.jour, m.mois, m.annee)]) + " " + longue;
    case 1:
        return longue;
    case 2:
        return jj + " " + kMoisAbreges[m.mois - 1] + " " + aaaa;
    case 3:
    case 4:
    case 8:
        return jj + "/" + mm + "/" + aaaa;
    case 5:
        return jj + " - " + mm + " - " + aaaa;
    case 6:
        return jj + "-" + mm + "-" + aa;
    case 7:
        return jj + "/" + mm + "/" + aa;
    case 9:
        return jj + "/" + mm;
    case 10:
        return jj;
    case 11:
        return DateGenerale(m);
    case 12:
        return Heure(m, ":", true);
    case 13:
    case 14:
        return Heure(m, ":", false);
    case 15:
        return Heure(m, "-", true);
    case 16:
        return Heure(m, ".", true);
    case 17:
        return Heure(m, "-", false);
    default:
        return {};
    }
}

Texte Age(const Texte& naissance, const Instant& maintenant) {
    const Texte t = Rogner(naissance);
    if (t.empty() || t == "**/**/****") return {};
    const auto d = LireDate(t);
    if (!d) throw std::runtime_error("date de naissance illisible : " + t);
    const double aujourdhui = maintenant.jour + maintenant.mois * 30.5 + maintenant.annee * 365.0;
    const double ne = d->jour + d->mois * 30.5 + d->annee * 365.0;
    return std::to_string(static_cast<long long>(std::trunc((aujourdhui - ne) / 365.0)));
}

} // namespace verdane
