// fabrique-marlo SOURCE DESTINATION: makes a Marlo installation from its text descriptions.

#include "Fabrique.h"

#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    using namespace verdane;
    if (argc != 3) {
        std::fprintf(stderr, "usage : fabrique-marlo SOURCE DESTINATION\n");
        return 2;
    }
    const fs::path source = fs::absolute(argv[1]);
    const fs::path destination = fs::absolute(argv[2]);
    const std::string racine = Utf8VersCp1252(destination.string()) + "/";
    int fautes = 0;
    for (const auto& entree : fs::recursive_directory_iterator(source)) {
        if (!entree.is_regular_file()) continue;
        const fs::path relatif = fs::relative(entree.path(), source);
        std::ifstream f(entree.path(), std::ios::binary);
        std::stringstream contenu;
        contenu << f.rdbuf();
        const auto fabrication =
            fabrique::Fabriquer(entree.path().filename().string(), contenu.str(), racine);
        const fs::path cible = destination / relatif.parent_path() /
                               (fabrication ? fabrication->nom : relatif.filename().string());
        fs::create_directories(cible.parent_path());
        const std::string octets = fabrication ? fabrication->octets : contenu.str();
        if (!EcrireFichierSur(Utf8VersCp1252(cible.string()), octets)) {
            std::fprintf(stderr, "%s %s\n", Cp1252VersUtf8("impossible d'écrire").c_str(),
                         cible.string().c_str());
            ++fautes;
        }
    }
    return fautes == 0 ? 0 : 1;
}
