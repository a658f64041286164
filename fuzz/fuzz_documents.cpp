// libFuzzer entry: whole documents over a damaged dossier. The sample installation is made once
// from its descriptions; each input picks one file of the dossier DUPONT (record, series, lists,
// module file), overwrites bytes of it or cuts it short, and the sample models are made over
// it. Whatever the dossier holds, every document is written.

#include "Fabrique.h"
#include "FichiersFuzz.h"
#include "data/ChargerDossier.h"
#include "engine/CreationDoc.h"
#include "shell/Demarrage.h"
#include "shell/etat/Contexte.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace {

using namespace verdane;

// The sample installation, made from samples/source into the fuzzer's folder.
const fs::path& Installation() {
    static const fs::path racine = [] {
        const fs::path source = VERDANE_ECHANTILLONS;
        const fs::path destination = fuzz::Dossier() / "Marlo";
        const std::string texteRacine = destination.string() + "/";
        for (const auto& e : fs::recursive_directory_iterator(source)) {
            if (!e.is_regular_file()) continue;
            std::ifstream f(e.path(), std::ios::binary);
            std::stringstream contenu;
            contenu << f.rdbuf();
            const auto fait =
                fabrique::Fabriquer(e.path().filename().string(), contenu.str(), texteRacine);
            const fs::path relatif = fs::relative(e.path(), source);
            const std::string nom = fait ? fait->nom : relatif.filename().string();
            fuzz::Ecrire(("Marlo" / relatif.parent_path() / nom).string(),
                         fait ? fait->octets : contenu.str());
        }
        return destination;
    }();
    return racine;
}

struct FichierDossier {
    fs::path chemin;
    std::string octets;
};

// The files of the dossier as made, sorted by name.
const std::vector<FichierDossier>& FichiersDuDossier() {
    static const std::vector<FichierDossier> fichiers = [] {
        std::vector<FichierDossier> v;
        for (const auto& e : fs::directory_iterator(Installation() / "Dossiers" / "DUPONT")) {
            std::ifstream f(e.path(), std::ios::binary);
            std::stringstream contenu;
            contenu << f.rdbuf();
            v.push_back({e.path(), contenu.str()});
        }
        std::sort(v.begin(), v.end(),
                  [](const auto& a, const auto& b) { return a.chemin < b.chemin; });
        return v;
    }();
    return fichiers;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    const auto& fichiers = FichiersDuDossier();
    if (taille < 2 || fichiers.empty()) return 0;
    const FichierDossier& cible = fichiers[donnees[0] % fichiers.size()];
    // Byte 1: the length kept, in 256ths of the file (255: all of it); then patches of three
    // bytes: a 16-bit position and the byte put there.
    std::string octets = cible.octets;
    if (donnees[1] != 255) octets.resize(octets.size() * donnees[1] / 256);
    for (std::size_t i = 2; i + 3 <= taille && !octets.empty(); i += 3) {
        const std::size_t position = (donnees[i] | (donnees[i + 1] << 8)) % octets.size();
        octets[position] = static_cast<char>(donnees[i + 2]);
    }
    fuzz::Ecrire(fs::relative(cible.chemin, fuzz::Dossier()).string(), octets);

    UtilisateurMuet muet;
    Contexte ctx(muet);
    Environnement env;
    env.marloHome = Installation().string();
    if (!Initialiser(ctx, env)) std::abort();
    ctx.etat.RepDossier[0] = (Installation() / "Dossiers").string() + "/";
    ctx.etat.NomDossier[0] = "DUPONT";
    const fs::path modeles = Installation() / "Verdane" / "ModlDocs";
    for (const char* modele : {"fiche-dossier.vdm", "domaine.vdm", "tableaux.vdm"}) {
        const std::string resultat = (fuzz::Dossier() / "resultat.rtf").string();
        if (CreerDocument(ctx, (modeles / modele).string(), resultat, false, true, false) !=
            IssueCreation::Faite)
            std::abort();
    }
    fuzz::Ecrire(fs::relative(cible.chemin, fuzz::Dossier()).string(), cible.octets);
    return 0;
}
