#include "engine/ChampsDossier.h"

#include "engine/DatesCode.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace verdane {

namespace {

struct Associe {
    Texte nom;
    bool ja = false;
    Texte naissance;
    Texte situation;
};

// Partners 1 to nbAssocies.
std::vector<Associe> Associes(const EnrDossier& d) {
    std::vector<Associe> liste;
    const int n = std::clamp<int>(d.nbAssocies, 0, 10);
    for (int i = 1; i <= n; ++i) {
        const auto k = static_cast<std::size_t>(i);
        liste.push_back({Rogner(d.nomAssocie[k]), d.jaAssocie[k] == 1,
                         Rogner(d.naissanceAssocie[k]), Rogner(d.situationAssocie[k])});
    }
    return liste;
}

const Associe* PremierJA(const std::vector<Associe>& associes) {
    for (const auto& a : associes)
        if (a.ja) return &a;
    return nullptr;
}

bool DateConnue(const Texte& date) {
    return !date.empty() && date != "**/**/****";
}

Texte ModeCom(const EnrDossier& d, int i, const char* fin) {
    const auto k = static_cast<std::size_t>(i);
    const Texte produit = Rogner(d.produit[k]);
    if (produit.empty()) return {};
    const Texte mode = Rogner(d.modeCom[k]);
    return "- " + produit + " : " + (mode.empty() ? Texte("non renseigné") : mode) + fin;
}

// The date and time of the dossier folder, in the general form.
Texte DateDossier(const EnrDossier& d) {
    Texte chemin = Rogner(d.chemin);
    if (!chemin.empty()) chemin.pop_back();
    std::error_code erreur;
    const auto quand = std::filesystem::last_write_time(CheminSysteme(chemin), erreur);
    if (erreur) throw std::runtime_error("dossier introuvable : " + chemin);
    const auto systeme = std::chrono::time_point_cast<std::chrono::seconds>(
        quand - std::filesystem::file_time_type::clock::now() + std::chrono::system_clock::now());
    return DateGenerale(InstantLocal(std::chrono::system_clock::to_time_t(systeme))).substr(0, 9);
}

std::optional<Champ> ChampProjet(const EnrDossier& d, const Texte& code) {
    const char* const phrase = "la description du projet.";
    if (code != "descProjet" && code != "descProjet1" && code != "descProjet2" &&
        code != "descProjet3" && code != "descProjet4etFin")
        return std::nullopt;
    const auto lignes = LignesProjet(d.descProjet);
    Champ c{{}, phrase, code == "descProjet"};
    if (lignes.size() <= 1) {
        if (code == "descProjet" || code == "descProjet1")
            c.valeur = lignes.empty() ? Texte() : lignes[0];
        return c;
    }
    if (code == "descProjet") {
        for (const auto& l : lignes) c.valeur += l + "\\par ";
    } else if (code == "descProjet4etFin") {
        for (std::size_t i = 3; i < lignes.size(); ++i) c.valeur += (i > 3 ? " " : "") + lignes[i];
    } else {
        const auto n = static_cast<std::size_t>(code.back() - '1');
        if (n < lignes.size()) c.valeur = lignes[n];
    }
    return c;
}

// `<mot><n>` with n from 1 to `max`: n, else 0.
int Numero(const Texte& code, std::string_view mot, int max) {
    if (!CommencePar(code, mot)) return 0;
    const auto n = EntierStrict(std::string_view(code).substr(mot.size()));
    if (!n || *n < 1 || *n > max || code.size() > mot.size() + 2 || code[mot.size()] == '0' ||
        code[mot.size()] == ' ')
        return 0;
    return static_cast<int>(*n);
}

std::optional<Champ> ChampListe(const EnrDossier& d, const Texte& code) {
    const bool societe = d.EstSociete();
    const auto associes = Associes(d);
    Champ c{{}, {}, true};
    if (code == "nomSocAss") {
        c.valeur = "Nom société : " + Rogner(d.nomExploitation) + "\\par ";
        if (societe)
            for (const auto& a : associes) c.valeur += "- " + a.nom + "\\par ";
        c.phrase = "le nom de la société avec les différents partenaires ( champ laissé vide si "
                   "exploit. individuelle ).";
    } else if (code == "associes") {
        c.valeur = "Liste des associés : \\par ";
        if (societe)
            for (const auto& a : associes) {
                c.valeur += "- " + a.nom;
                if (DateConnue(a.naissance)) c.valeur += ", né(e) le : " + a.naissance;
                if (a.ja) c.valeur += ", Jeune Agriculteur";
                c.valeur += "\\par ";
            }
        c.phrase = "les informations connues pour chaque associé dans le cas d'une société.";
    } else if (code == "nomAssocies" || code == "nomAssJA") {
        c.valeur = "Nom des associés : \\par ";
        const bool jaSeuls = code == "nomAssJA";
        if (societe)
            for (const auto& a : associes)
                if (!jaSeuls || a.ja) c.valeur += "- " + a.nom + "\\par ";
        c.phrase = jaSeuls ? "la liste ( nom ) des associés JA dans le cas d'une société."
                           : "la liste ( noms ) des associés.";
    } else if (code == "assNesLe") {
        c.valeur = "Date de naissance des associés : \\par ";
        if (societe)
            for (const auto& a : associes)
                c.valeur += "- " + a.nom + " : " +
                            (DateConnue(a.naissance) ? a.naissance : Texte("non renseignée")) +
                            "\\par ";
        c.phrase = "la liste des associés et leur date de naissance.";
    } else if (code == "situAss") {
        c.valeur = "Situation familiale des associés : \\par ";
        if (societe)
            for (const auto& a : associes)
                c.valeur +=
                    "- " + a.nom + " : " +
                    (a.situation.empty() ? Texte("non renseignée") : Minuscules(a.situation)) +
                    "\\par ";
        c.phrase = "la liste des associés et leur situation familiale.";
    } else if (code == "modeCom") {
        for (int i = 1; i <= 6; ++i) c.valeur += ModeCom(d, i, "\\par ");
        c.phrase = "le mode de commercialisation de chaque produit de l'exploitation.";
    } else if (const int n = Numero(code, "modeCom", 6)) {
        c.liste = false;
        c.valeur = ModeCom(d, n, " ");
        c.phrase = "le mode de commercialisation du produit numéro " + std::to_string(n) +
                   " de l'exploitation.";
    } else if (const int k = Numero(code, "nomAss", 10)) {
        c.liste = false;
        const auto i = static_cast<std::size_t>(k);
        if (societe) c.valeur = (d.jaAssocie[i] == 1 ? "JA : " : "") + Rogner(d.nomAssocie[i]);
        c.phrase =
            "le nom de l'associé numéro " + std::to_string(k) + " dans le cas d'une société.";
    } else {
        return std::nullopt;
    }
    return c;
}

std::optional<Champ> ChampSimple(Contexte& ctx, const Texte& code, const Instant& maintenant) {
    const EnrDossier& d = ctx.etat.enrDossier;
    const bool societe = d.EstSociete();
    const auto associes = Associes(d);
    const Associe* ja = PremierJA(associes);
    const Texte exploitation = Rogner(d.nomExploitation);
    auto champ = [](Texte valeur, const char* phrase) {
        return std::optional<Champ>(Champ{std::move(valeur), phrase});
    };

    if (code == "nomExplSoc")
        return champ(exploitation, "le nom de l'exploitant ou de la société.");
    if (code == "nomExplJA")
        return champ(societe ? (ja ? ja->nom : Texte()) : exploitation,
                     "le nom de l'exploitant ou du premier associé JA dans le cas d'une société.");
    if (code == "nomExploit")
        return champ(societe ? Texte() : exploitation,
                     "le nom de l'exploitant ( champ laissé vide dans le cas d'une société ).");
    if (code == "nomSociete")
        return champ(societe ? exploitation : Texte(),
                     "le nom de la société ( champ laissé vide dans le cas d'une exploitation "
                     "individuelle ).");
    if (code == "sitExplJA")
        return champ(
            Minuscules(societe ? (ja ? ja->situation : Texte()) : Rogner(d.situationAssocie[0])),
            "la situation familiale de l'exploitant ou du premier associé JA dans le "
            "cas d'une société.");
    if (code == "ageExplJA") {
        Texte age = Age(d.naissanceAssocie[0], maintenant);
        if (societe && ja) age = Age(ja->naissance, maintenant);
        return champ(age, "l'âge de l'exploitant ou du premier associé JA dans le cas d'une "
                          "société.");
    }
    if (code == "typeSoc")
        return champ(societe ? "société" : "individuelle",
                     "le type d'exploitation : individuelle ou société.");
    if (code == "adresse") return champ(Rogner(d.adresse), "l'adresse postale de l'exploitation.");
    if (code == "commune")
        return champ(Rogner(d.commune), "la commune où se situe l'exploitation.");
    if (code == "tel") return champ(Rogner(d.tel), "le numéro de téléphone de l'exploitation.");
    if (code == "fax") return champ(Rogner(d.fax), "le numéro de fax de l'exploitation.");
    if (code == "regionAgri")
        return champ(Rogner(d.regionAgri), "la région agricole de l'exploitation.");
    if (code == "activAutre")
        return champ(Rogner(d.activAutre), "la ou les autres activités de l'exploitation.");
    if (code == "banque") return champ(Rogner(d.banque), "la banque dont dépend l'exploitation.");
    if (code == "numAdh") return champ(Rogner(d.numAdh), "le numéro d'adhérent.");
    if (code == "nbAssocies") return champ(std::to_string(d.nbAssocies), "le nombre d'associés.");
    if (code == "nbAssJA") {
        const auto n = societe ? std::count_if(associes.begin(), associes.end(),
                                               [](const Associe& a) { return a.ja; })
                               : 0;
        return champ(std::to_string(n), "le nombre d'associés JA.");
    }
    if (code == "dateDebut")
        return champ(Rogner(d.dateDebut), "la date début de l'étude prévisionnelle.");
    if (code == "nbAnEtude")
        return champ(std::to_string(ctx.etat.nbAnEtude), "le nombre d'année d'étude.");
    if (code == "conseiller")
        return champ(Rogner(d.conseiller), "le nom du conseiller ayant mené l'étude sur Marlo.");
    if (code == "nomDossier") return champ(Rogner(d.nom), "le nom du dossier.");
    if (code == "cheminDoss")
        return champ(RemplacerExact(Rogner(d.chemin), "\\", "\\\\"), "le chemin du dossier.");
    if (code == "dateDossier") return champ(DateDossier(d), "la date de création du dossier.");
    if (code == "moisTva") return champ(std::to_string(d.moisTva), "le mois de remboursement TVA.");
    if (code == "devise") return champ(d.devise == 0 ? "Franc" : "€uro", "la devise.");
    return std::nullopt;
}

} // namespace

std::vector<Texte> LignesProjet(const Texte& descProjet) {
    std::vector<Texte> lignes;
    const Texte texte = Rogner(descProjet);
    if (texte.empty()) return lignes;
    std::size_t debut = 0;
    while (true) {
        const auto n = texte.find('\r', debut);
        lignes.push_back(
            RognerTout(texte.substr(debut, n == Texte::npos ? Texte::npos : n - debut)));
        if (n == Texte::npos) break;
        debut = n + 1;
    }
    return lignes;
}

std::optional<Champ> ChampDossier(Contexte& ctx, const Texte& code, const Instant& maintenant) {
    if (code == "saut2page") return Champ{"\\page", ""};
    if (code == "numPage2" || code == "numPage2bis") {
        Etat& e = ctx.etat;
        if (e.NumPageCourant < 32767) ++e.NumPageCourant;
        return Champ{"\\v0 -" + code.substr(7) + std::to_string(e.NumPageCourant),
                     "un numéro de page incrémenté de 1 à chaque apparition de ce code."};
    }
    if (auto c = ChampSimple(ctx, code, maintenant)) return c;
    if (auto c = ChampListe(ctx.etat.enrDossier, code)) return c;
    if (auto c = ChampProjet(ctx.etat.enrDossier, code)) return c;
    return DateExercice(code, ctx.etat.enrDossier.dateDebut);
}

} // namespace verdane
