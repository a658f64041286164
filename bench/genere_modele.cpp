// Generator of the end-to-end benchmark: a dossier and a large model over it.
//
//   genere_modele FOLDER [scale=1] [charts=20]
//
// At scale 1 the model is about 3 MB: 20,000 data codes in paragraphs, 200 tables of 30 series
// lines over the 6 study years and the year before them, `charts` charts, and plain paragraphs up
// to the size. FOLDER receives the dossier D (record and series files), the model modele.vdm, and
// valeurs.txt: the series records a run reads, one "file record" a line, for the floor program.

#include "Fabrique.h"
#include "data/EnrDon.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace verdane;
namespace fs = std::filesystem;

constexpr int kEnregistrements = 200;
constexpr int kAnnees = 6;
const char* const kFichiers[] = {"VLVB", "OV", "CULT", "RES", "VA"};

struct Generateur {
    std::string modele;
    std::string valeurs; // the records read, in order
    unsigned graine = 12345;

    int Hasard(int n) {
        graine = graine * 1103515245u + 12345u;
        return static_cast<int>((graine >> 8) % static_cast<unsigned>(n));
    }
    void Lu(const std::string& fichier, int enregistrement) {
        valeurs += fichier + ".don " + std::to_string(enregistrement) + "\n";
    }

    void Paragraphe() {
        modele += "\\pard\\plain \\ql\\widctlpar\\f1\\fs22 Le GAEC #mrl(nomExplSoc)# a produit ";
        for (int k = 0; k < 5; ++k) {
            const std::string f = kFichiers[Hasard(5)];
            const int r = Hasard(kEnregistrements) + 1;
            const int a = Hasard(kAnnees + 1);
            modele += "#mrl(" + f + ".don+" + f + "-" + std::to_string(a) + "a" +
                      std::to_string(r) + ":0)# " + (k % 2 ? "litres, " : "euros, ");
            Lu(f, r);
        }
        modele += "soit un r\\'e9sultat conforme aux pr\\'e9visions de l'\\'e9tude.\\par\r\n";
    }

    void Tableau() {
        const std::string format = ";5006;10;1;0;0;0;0;0;l;1;1;1;1;8]";
        modele += "\\pard\\plain \\ql #mrl(taba2p11;larg3000;larg5000([280;120][Exercice;5006;"
                  "10;1;1;0;0;0;0;c;1;1;1;1;16][entete:4:Ann\\'e9es;5006;10;1;1;0;0;0;0;c;1;1;1;"
                  "1;16]";
        for (int l = 0; l < 30; ++l) {
            const std::string f = kFichiers[Hasard(5)];
            const int r = Hasard(kEnregistrements) + 1;
            modele += "#[280;120][Ligne_" + std::to_string(l + 1) + format + "[serie:" + f +
                      ".DON+" + f + "-" + std::to_string(r) + ":0:0" + format;
            for (int a = 0; a <= kAnnees; ++a) Lu(f, r); // the year before the study too
        }
        modele += "))#\\par\r\n";
    }

    void Graphique(int n) {
        const int r = n % kEnregistrements + 1;
        modele += "\\pard\\plain \\qc #mrl(gph(Lait_vendu_" + std::to_string(n) +
                  ";2;1;1;0;Livraisons;0;0;50;50;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;1;1;1;"
                  "Ann\\'e9es;10;30;Litres;10;30;;10;30;;10;30;16;[VLVB-" +
                  std::to_string(r) + ":0;Lait_vendu;1;VLVB.don;0;60;150;80;1;1]))#\\par\r\n";
    }

    void Remplissage() {
        modele += "\\pard\\plain \\ql\\widctlpar\\f1\\fs22 Un paragraphe de texte sans code, tel "
                  "qu'un conseiller en \\'e9crit autour des chiffres de l'\\'e9tude.\\par\r\n";
    }
};

void Ecrire(const fs::path& chemin, const std::string& octets) {
    std::ofstream(chemin, std::ios::binary) << octets;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: genere_modele FOLDER [scale=1] [charts=20]\n");
        return 2;
    }
    const fs::path racine = argv[1];
    const int echelle = argc > 2 ? std::max(1, std::atoi(argv[2])) : 1;
    const int graphiques = argc > 3 ? std::max(0, std::atoi(argv[3])) : 20;
    fs::create_directories(racine / "D");
    Ecrire(racine / "D" / "D",
           fabrique::FabriquerDossier(fabrique::LireDescription(
               "[dossier]\nnom=D\nnomExploitation=GAEC DES CHAMPS\nnbAnEtude=6\n"
               "anneeDebut=2024\ndateDebut=01/01/2024\ntypeExploitation=1\nnbAssocies=2\n"
               "nomAssocie1=A\nnomAssocie2=B\n")));
    for (const char* f : kFichiers) {
        std::string don;
        for (int r = 1; r <= kEnregistrements; ++r) {
            EnrDon e;
            e.code = std::string(f) + "-" + std::to_string(r) + ":0";
            e.libelle = "S\xE9rie " + std::to_string(r);
            for (std::size_t k = 0; k < e.valeur.size(); ++k)
                e.valeur[k] = 1000.5f * static_cast<float>(r + static_cast<int>(k));
            don += EcrireEnrDon(e);
        }
        Ecrire(racine / "D" / (std::string(f) + ".don"), don);
    }

    Generateur g;
    g.modele = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}"
               "{\\f1\\fswiss Arial;}}\r\n{\\colortbl;\\red0\\green0\\blue0;}\r\n"
               "{\\info{\\title Essai}{\\author Verdane}}\r\n";
    const std::size_t cible = 3'000'000u * static_cast<std::size_t>(echelle);
    const int paragraphes = 4000 * echelle, tableaux = 200 * echelle;
    const int nbGraphiques = graphiques * echelle;
    // Codes, tables and charts spread evenly through the text.
    const int pas = paragraphes / tableaux;
    for (int p = 0, t = 0, c = 0; p < paragraphes; ++p) {
        g.Paragraphe();
        if (p % pas == pas - 1 && t < tableaux) {
            g.Tableau();
            if (nbGraphiques > 0 && t % std::max(1, tableaux / nbGraphiques) == 0 &&
                c < nbGraphiques)
                g.Graphique(c++);
            ++t;
        }
        g.Remplissage();
    }
    while (g.modele.size() < cible) g.Remplissage();
    g.modele += "}\r\n";
    Ecrire(racine / "modele.vdm", g.modele);
    Ecrire(racine / "valeurs.txt", g.valeurs);
    std::printf("%s: %zu bytes of model, %zu series reads\n", (racine / "modele.vdm").c_str(),
                g.modele.size(),
                static_cast<std::size_t>(std::count(g.valeurs.begin(), g.valeurs.end(), '\n')));
    return 0;
}
