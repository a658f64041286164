// fabrique-skin FOLDER: draws the program's own skin into FOLDER.

#include "FabriqueSkin.h"

#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <cstdio>
#include <filesystem>

int main(int argc, char** argv) {
    using namespace verdane;
    if (argc != 2) {
        std::fprintf(stderr, "usage : fabrique-skin DOSSIER\n");
        return 2;
    }
    const std::filesystem::path dossier = std::filesystem::absolute(argv[1]);
    std::error_code ec;
    std::filesystem::create_directories(dossier, ec);
    int fautes = 0;
    for (const auto& f : fabrique::FabriquerSkin()) {
        const auto chemin = dossier / f.nom;
        if (!EcrireFichierSur(Utf8VersCp1252(chemin.string()), f.octets)) {
            std::fprintf(stderr, "%s %s\n", Cp1252VersUtf8("impossible d'écrire").c_str(),
                         chemin.string().c_str());
            ++fautes;
        }
    }
    return fautes == 0 ? 0 : 1;
}
