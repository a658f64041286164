// libFuzzer entry: bytes taken as a document model. The model is cut into pieces and every
// piece goes through the scanner and the interpreter with a dossier in memory: nothing may
// fail, loop or read out of bounds.

#include "data/EnrDossier.h"
#include "engine/AnalyserCodes.h"
#include "engine/LectureModele.h"
#include "shell/etat/Contexte.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    UtilisateurMuet muet;
    Contexte ctx(muet);
    ctx.etat.enrDossier = LireEnrDossier(octets.substr(0, EnrDossier::kTaille));
    ctx.etat.nbAnEtude = ctx.etat.enrDossier.nbAnEtude;
    ctx.etat.anneeDebut = ctx.etat.enrDossier.anneeDebut;
    const auto modele = DecouperModele(Texte(octets));
    for (const auto vue : modele.Morceaux) {
        Texte morceau(vue);
        AnalyserCodes(ctx, morceau, false, false);
        Texte copie = morceau;
        AnalyserCodesImbriques(ctx, copie);
    }
    return 0;
}
