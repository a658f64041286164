#include "shell/console/ConsoleUtilisateur.h"

#include "utils/Chaines.h"

#include <algorithm>

#include <unistd.h>

namespace verdane {
namespace {

const char* NomReponse(Reponse r) {
    switch (r) {
    case Reponse::Ok:
        return "OK";
    case Reponse::Oui:
        return "Oui";
    case Reponse::Non:
        return "Non";
    case Reponse::Annuler:
        return "Annuler";
    }
    return "";
}

std::vector<Reponse> Choix(Boutons b) {
    switch (b) {
    case Boutons::Ok:
        return {Reponse::Ok};
    case Boutons::OuiNon:
        return {Reponse::Oui, Reponse::Non};
    case Boutons::OuiNonAnnuler:
        return {Reponse::Oui, Reponse::Non, Reponse::Annuler};
    case Boutons::OkAnnuler:
        return {Reponse::Ok, Reponse::Annuler};
    }
    return {Reponse::Ok};
}

// A dossier's path as the user sees it: its folder and its name.
Texte CheminDossier(const DossierCompare& d) {
    if (Rogner(d.nom).empty()) return {};
    Texte r = Rogner(d.repertoire);
    if (!r.empty() && r.back() != '/' && r.back() != '\\') r += '/';
    return r + Rogner(d.nom);
}

// A path typed by the user: the parent folder (with its separator) and the last name.
DossierCompare DossierDeChemin(Texte chemin) {
    while (chemin.size() > 1 && (chemin.back() == '/' || chemin.back() == '\\')) chemin.pop_back();
    const auto p = chemin.find_last_of("/\\");
    if (p == Texte::npos) return {"./", chemin};
    return {chemin.substr(0, p + 1), chemin.substr(p + 1)};
}

} // namespace

std::string TexteConsole(const Texte& texte) {
    // The program's texts break lines with CR LF, as the message boxes want.
    Texte t = RemplacerExact(texte, "\r\n", "\n");
    t = RemplacerExact(t, "\r", "\n");
    return Cp1252VersUtf8(t);
}

ConsoleUtilisateur::ConsoleUtilisateur()
    : ConsoleUtilisateur(stdin, isatty(STDIN_FILENO) != 0, stderr, isatty(STDERR_FILENO) != 0) {}

ConsoleUtilisateur::ConsoleUtilisateur(std::FILE* entree, bool entreeTerminal, std::FILE* erreur,
                                       bool erreurTerminal)
    : entree_(entree), entreeTerminal_(entreeTerminal), erreur_(erreur),
      erreurTerminal_(erreurTerminal) {}

void ConsoleUtilisateur::Ecrire(const std::string& utf8) {
    if (jaugeOuverte_ && erreurTerminal_) std::fputs("\r\033[K", erreur_);
    std::fputs(utf8.c_str(), erreur_);
    std::fflush(erreur_);
}

void ConsoleUtilisateur::AfficherMessage(const Message& message) {
    if (message.texte.empty()) return; // the form stays as it stands
    std::string s;
    if (!message.titre.empty()) s += "[" + TexteConsole(message.titre) + "]\n";
    s += TexteConsole(message.texte) + "\n";
    if (!message.technique.empty()) s += TexteConsole(message.technique) + "\n";
    Ecrire(s);
}

void ConsoleUtilisateur::Boite(const Texte& texte, const Texte& titre, Icone) {
    AfficherMessage(Message{texte, "", titre, "boite"});
}

Reponse ConsoleUtilisateur::Question(const Texte& texte, const Texte& titre, Boutons boutons,
                                     Reponse parDefaut, Icone) {
    const auto choix = Choix(boutons);
    std::string s;
    if (!titre.empty()) s += "[" + TexteConsole(titre) + "]\n";
    s += TexteConsole(texte) + "\n";
    Reponse prise = parDefaut;
    if (imposee_) {
        prise = *imposee_;
        if (boutons == Boutons::OkAnnuler)
            prise = prise == Reponse::Oui ? Reponse::Ok : Reponse::Annuler;
        s += std::string("-> ") + NomReponse(prise) + " (réponse imposée)\n";
        Ecrire(s);
    } else if (!entreeTerminal_) {
        s += std::string("-> ") + NomReponse(parDefaut) +
             " (réponse par défaut : aucun terminal pour répondre)\n";
        Ecrire(s);
    } else {
        for (;;) {
            std::string invite = s;
            for (std::size_t i = 0; i < choix.size(); ++i) {
                invite += i == 0 ? "" : " / ";
                invite += NomReponse(choix[i]);
                if (choix[i] == parDefaut) invite += "*";
            }
            Ecrire(invite + " ? ");
            char ligne[64];
            if (!std::fgets(ligne, sizeof ligne, entree_)) break; // end of input: the default
            const Texte reponse = Minuscules(RognerTout(ligne));
            if (reponse.empty()) break;
            bool trouvee = false;
            for (Reponse r : choix) {
                const Texte nom = Minuscules(NomReponse(r));
                if (nom == reponse || nom[0] == reponse[0]) {
                    prise = r;
                    trouvee = true;
                    break;
                }
            }
            if (trouvee) break;
            s.clear();
        }
    }
    return prise;
}

void ConsoleUtilisateur::OuvrirJauge(const Texte& titre) {
    jaugeOuverte_ = true;
    if (erreurTerminal_ && !titre.empty()) Ecrire(TexteConsole(titre) + "\n");
}

void ConsoleUtilisateur::PoserJauge(int largeur, const Texte& libelle) {
    if (!erreurTerminal_) return;
    constexpr int kCases = 30;
    const int pleines = std::max(0, std::min(kCases, largeur * kCases / 2970));
    std::string barre = "\r\033[K[" + std::string(static_cast<std::size_t>(pleines), '#') +
                        std::string(static_cast<std::size_t>(kCases - pleines), '.') + "] " +
                        TexteConsole(RognerTout(libelle));
    std::fputs(barre.c_str(), erreur_);
    std::fflush(erreur_);
}

void ConsoleUtilisateur::FermerJauge() {
    if (jaugeOuverte_ && erreurTerminal_) std::fputs("\n", erreur_);
    jaugeOuverte_ = false;
}

std::optional<std::string> ConsoleUtilisateur::LireLigne() {
    std::string ligne;
    char tampon[512];
    while (std::fgets(tampon, sizeof tampon, entree_)) {
        ligne += tampon;
        if (!ligne.empty() && ligne.back() == '\n') break;
    }
    if (ligne.empty()) return std::nullopt;
    while (!ligne.empty() && (ligne.back() == '\n' || ligne.back() == '\r')) ligne.pop_back();
    return ligne;
}

bool ConsoleUtilisateur::ChoisirDossiers(const Texte& titre, const Texte& consigne, int& nombre,
                                         std::vector<DossierCompare>& dossiers) {
    std::string s = "[" + TexteConsole(titre) + "]\n" + TexteConsole(consigne) + "\n";
    if (!entreeTerminal_) {
        s += TexteConsole("Aucun terminal pour choisir : comparaison des dossiers précédents.\n");
        for (int k = 1; k <= nombre && k <= static_cast<int>(dossiers.size()); ++k)
            s += "  Dossier " + std::to_string(k) + " : " +
                 TexteConsole(CheminDossier(dossiers[static_cast<std::size_t>(k - 1)])) + "\n";
        Ecrire(s);
        return true;
    }
    Ecrire(s + TexteConsole("Nombre de dossiers à comparer (1 à 9) [") + std::to_string(nombre) +
           "] ? ");
    const auto reponse = LireLigne();
    if (!reponse) return false;
    if (const auto n = EntierStrict(Utf8VersCp1252(*reponse)); n && *n >= 1 && *n <= 9)
        nombre = static_cast<int>(*n);
    if (dossiers.size() < static_cast<std::size_t>(nombre))
        dossiers.resize(static_cast<std::size_t>(nombre));
    for (int k = 1; k <= nombre; ++k) {
        DossierCompare& d = dossiers[static_cast<std::size_t>(k - 1)];
        Ecrire("Dossier " + std::to_string(k) + " [" + TexteConsole(CheminDossier(d)) + "] ? ");
        const auto chemin = LireLigne();
        if (!chemin) return false;
        const Texte t = RognerTout(Utf8VersCp1252(*chemin));
        if (!t.empty()) d = DossierDeChemin(t);
    }
    return true;
}

} // namespace verdane
