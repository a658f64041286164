#include "shell/console/ConsoleUtilisateur.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <tuple>

namespace verdane {
namespace {

// A console over temporary files in place of the terminal.
struct Console {
    explicit Console(const char* saisie, bool terminal) {
        entree = std::tmpfile();
        erreur = std::tmpfile();
        std::fputs(saisie, entree);
        std::rewind(entree);
        port = std::make_unique<ConsoleUtilisateur>(entree, terminal, erreur, false);
    }
    ~Console() {
        std::fclose(entree);
        std::fclose(erreur);
    }
    std::string Ecrit() const {
        std::rewind(erreur);
        std::string s;
        for (int c; (c = std::fgetc(erreur)) != EOF;) s += static_cast<char>(c);
        return s;
    }
    std::FILE* entree;
    std::FILE* erreur;
    std::unique_ptr<ConsoleUtilisateur> port;
};

} // namespace

TEST(ConsoleUtilisateur, SansTerminalLaQuestionPrendSaReponseParDefautEtLeDit) {
    Console c("oui\n", false); // something waits on stdin, but it isn't a terminal
    EXPECT_EQ(
        c.port->Question("Remplacer ?", "Titre", Boutons::OuiNon, Reponse::Non, Icone::Question),
        Reponse::Non);
    // What the terminal gets is UTF-8, literals of the program included.
    EXPECT_NE(c.Ecrit().find("-> Non (r\xC3\xA9ponse par d\xC3\xA9"
                             "faut : aucun terminal"),
              std::string::npos);
}

TEST(ConsoleUtilisateur, AuTerminalLaReponseEstLue) {
    // Asked again until it is an answer; at the end of input, or on an empty line, the default.
    const std::tuple<const char*, Boutons, Reponse, Reponse> cas[] = {
        {"o\n", Boutons::OuiNon, Reponse::Non, Reponse::Oui},
        {"peut-etre\nnon\n", Boutons::OuiNon, Reponse::Oui, Reponse::Non},
        {"", Boutons::OuiNonAnnuler, Reponse::Annuler, Reponse::Annuler},
        {"\n", Boutons::OkAnnuler, Reponse::Ok, Reponse::Ok}};
    for (const auto& [saisie, boutons, parDefaut, attendue] : cas) {
        Console c(saisie, true);
        EXPECT_EQ(c.port->Question("?", "", boutons, parDefaut, Icone::Question), attendue)
            << saisie;
    }
}

TEST(ConsoleUtilisateur, UneReponseImposeeValaitPourToutes) {
    Console c("", false);
    c.port->ImposerReponse(Reponse::Oui);
    EXPECT_EQ(c.port->Question("?", "", Boutons::OuiNon, Reponse::Non, Icone::Question),
              Reponse::Oui);
    EXPECT_EQ(c.port->Question("?", "", Boutons::OkAnnuler, Reponse::Annuler, Icone::Question),
              Reponse::Ok);
    c.port->ImposerReponse(Reponse::Non);
    EXPECT_EQ(c.port->Question("?", "", Boutons::OkAnnuler, Reponse::Ok, Icone::Question),
              Reponse::Annuler);
}

TEST(ConsoleUtilisateur, LesMessagesSortentEnUtf8) {
    Console c("", false);
    c.port->AfficherMessage({"Création terminée !", "Détail\r\nsuite", "Titre é", ""});
    EXPECT_EQ(c.Ecrit(), "[Titre \xC3\xA9]\nCr\xC3\xA9"
                         "ation termin\xC3\xA9"
                         "e !\nD\xC3\xA9tail\nsuite\n");
    c.port->PoserJauge(1485, "50 %"); // no terminal: no gauge
    EXPECT_EQ(c.Ecrit().find("50 %"), std::string::npos);
}

} // namespace verdane
