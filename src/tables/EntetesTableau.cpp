#include "tables/EntetesTableau.h"

#include "shell/etat/Contexte.h"
#include "utils/Calendrier.h"
#include "utils/Chaines.h"

#include <array>
#include <optional>
#include <string>

namespace verdane {

namespace {

using Date = DateSimple;

// "jj/mm/aaaa", each part a number; nothing if it isn't a real date.
std::optional<Date> LireDate(const Texte& texte) {
    const Texte t = RognerTout(texte);
    const auto a = t.find('/');
    const auto b = a == Texte::npos ? Texte::npos : t.find('/', a + 1);
    if (b == Texte::npos) return std::nullopt;
    const auto j = EntierStrict(t.substr(0, a));
    const auto m = EntierStrict(t.substr(a + 1, b - a - 1));
    const auto y = EntierStrict(t.substr(b + 1));
    if (!j || !m || !y || *m < 1 || *m > 12 || *y < 100 || *y > 9000) return std::nullopt;
    Date d{static_cast<int>(*j), static_cast<int>(*m), static_cast<int>(*y)};
    if (d.jour < 1 || d.jour > JoursDuMois(d.mois, d.annee)) return std::nullopt;
    return d;
}

Texte Nombre(int n) {
    return std::to_string(n);
}

Texte DeuxDerniersChiffres(int annee) {
    const Texte t = Nombre(annee);
    return t.size() >= 2 ? t.substr(t.size() - 2) : t;
}

} // namespace

Texte NomMois(int mois) {
    static constexpr std::array<const char*, 12> kMois = {"Jan.", "Fév.", "Mars",  "Avr.",
                                                          "Mai",  "Juin", "Juil.", "Août",
                                                          "Sep.", "Oct.", "Nov.",  "Déc."};
    if (mois < 1 || mois > 12) return {};
    return kMois[static_cast<std::size_t>(mois - 1)];
}

Texte TitreAnnee(Contexte& ctx, int colonne, const Texte& forme) {
    static constexpr std::string_view kFormes[] = {"1", "2", "3", "4", "5", "6", "7"};
    bool connue = false;
    for (auto f : kFormes) connue = connue || forme == f;
    if (!connue) {
        ctx.utilisateur.AfficherMessage(
            {"Le format de la ligne d'intitulé d'un tableau est incorrect.", "",
             "Erreur détectée dans le modèle", ""});
        return {};
    }
    if (forme == "5") return "exercice " + Nombre(colonne);
    if (forme == "7") return Nombre(colonne);

    // A dossier without a readable start date: its start year, from 1 January.
    Texte dateDebut = RognerTout(ctx.etat.enrDossier.dateDebut);
    auto debutEtude = LireDate(dateDebut);
    if (!debutEtude && ctx.etat.anneeDebut > 0) {
        dateDebut = "01/01/" + Nombre(ctx.etat.anneeDebut);
        debutEtude = LireDate(dateDebut);
    }
    if (!debutEtude) return {};

    const Date debut = AjouterAnnees(*debutEtude, colonne - 1);
    Date fin = AjouterAnnees(*debutEtude, colonne);
    if (forme == "2" || forme == "3") fin = VeilleDe(fin);

    if (forme == "1" || forme == "4") {
        const Texte jour = dateDebut.substr(0, 2);
        const Texte mois = dateDebut.size() >= 5 ? dateDebut.substr(3, 2) : Texte();
        if (jour == "01" && mois == "01") return Nombre(debut.annee);
        if (jour == "31" && mois == "12") return Nombre(fin.annee);
        if (forme == "1") return Nombre(debut.annee) + "/" + DeuxDerniersChiffres(fin.annee);
        return Nombre(debut.annee) + "-" + Nombre(fin.annee);
    }
    if (forme == "2")
        return Nombre(debut.mois) + "-" + Nombre(debut.annee) + "\\par " + Nombre(fin.mois) + "-" +
               Nombre(fin.annee);
    if (forme == "3")
        return NomMois(debut.mois) + " " + Nombre(debut.annee) + "\\par " + NomMois(fin.mois) +
               " " + Nombre(fin.annee);
    // "6"
    return "situation au\\par " + Nombre(fin.jour) + "/" + Nombre(fin.mois) + "/" +
           Nombre(fin.annee);
}

Texte TitreDossier(Contexte& ctx, int colonne, const Texte& forme) {
    const Texte n = Nombre(colonne);
    if (forme == "1") {
        if (colonne < 0 || colonne >= static_cast<int>(ctx.etat.NomDossier.size())) return {};
        Texte nom = Rogner(ctx.etat.NomDossier[static_cast<std::size_t>(colonne)]);
        const auto mrl = TrouverSansCasse(nom, ".MRL");
        if (mrl != Texte::npos) nom.resize(mrl);
        return nom;
    }
    if (forme == "2") return "Hypothèse " + n;
    if (forme == "3") return "H" + n;
    if (forme == "4") return "Dossier Marlo n°" + n;
    if (forme == "5") return "Dossier n°" + n;
    if (forme == "6") return "Dossier " + n;
    return {};
}

} // namespace verdane
