// What a run that converts several results pays to LibreOffice: ten RTF results converted to
// ".doc" by one link (one office, started once), against conversions that each start their own
// office, as a program run per document would.
//
//   bench_lo_conversions [documents=10] [separate runs=3]

#include "links/FinDocument.h"
#include "links/uno/LiensSysteme.h"
#include "utils/OutilsFichiers.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace verdane;

namespace {

// The program's texts are Windows-1252; the terminal reads UTF-8.
template <typename... A> void Dire(const char* format, A... valeurs) {
    char ligne[512];
    std::snprintf(ligne, sizeof ligne, format, valeurs...);
    std::fputs(Cp1252VersUtf8(ligne).c_str(), stdout);
}

double Secondes(std::chrono::steady_clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

void EcrireResultat(const fs::path& chemin, int n) {
    std::ofstream f(chemin);
    f << "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 Document " << n << " de l'exploitation\\par ";
    for (int i = 0; i < 200; ++i) f << "Ligne " << i << " : 12 345,67\\tab 8 910,11\\par ";
    f << "}";
}

} // namespace

int main(int argc, char** argv) {
    const int documents = argc > 1 ? std::atoi(argv[1]) : 10;
    const int separes = argc > 2 ? std::atoi(argv[2]) : 3;
    const fs::path dossier =
        fs::temp_directory_path() / ("verdane-bench-" + std::to_string(::getpid()));
    fs::create_directories(dossier);

    UtilisateurMuet muet;
    // One run, one office, every result converted.
    double total = 0;
    double premier = 0; // the first document, with the start of the office
    int demarrages = 0;
    {
        Contexte ctx(muet);
        LiensSysteme liens(ctx, OptionsOffice{"", "", true, 60000});
        const auto debut = std::chrono::steady_clock::now();
        for (int i = 0; i < documents; ++i) {
            const fs::path r = dossier / ("r" + std::to_string(i) + ".doc");
            EcrireResultat(r, i);
            TerminerDocument(ctx, "", CheminTexte(r), false, true);
            if (i == 0) premier = Secondes(std::chrono::steady_clock::now() - debut);
        }
        total = Secondes(std::chrono::steady_clock::now() - debut);
        demarrages = liens.Bureau().Demarrages();
    }
    Dire("une exécution, %d conversions RTF -> DOC : %.2f s, %d démarrage(s) de LibreOffice ; "
         "le premier document (avec le démarrage) %.2f s, les suivants %.2f s chacun\n",
         documents, total, demarrages, premier,
         documents > 1 ? (total - premier) / (documents - 1) : 0.0);

    // A fresh office per document.
    double totalSepare = 0;
    for (int i = 0; i < separes; ++i) {
        Contexte ctx(muet);
        const auto debut = std::chrono::steady_clock::now();
        {
            LiensSysteme liens(ctx, OptionsOffice{"", "", true, 60000});
            const fs::path r = dossier / ("s" + std::to_string(i) + ".doc");
            EcrireResultat(r, i);
            TerminerDocument(ctx, "", CheminTexte(r), false, true);
        }
        totalSepare += Secondes(std::chrono::steady_clock::now() - debut);
    }
    if (separes > 0)
        Dire("un office par document : %.2f s par document (moyenne de %d), soit %.2f s "
             "pour %d\n",
             totalSepare / separes, separes, totalSepare / separes * documents, documents);

    std::error_code ec;
    fs::remove_all(dossier, ec);
    return demarrages == 1 ? 0 : 1;
}
