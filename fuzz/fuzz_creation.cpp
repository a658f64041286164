// libFuzzer entry: bytes taken as a model and run through the creation driver, or as a finished
// document and refreshed by it (first byte odd). Pieces, marks carried from piece to piece,
// hidden paragraphs, the information group, the font and colour tables, update markers: the
// driver writes a result whatever the bytes, never more than a bounded growth of them.

#include "FichiersFuzz.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "utils/Chaines.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>

namespace {

// Stands for the scanner, so that the driver alone is under test: a code becomes a short text,
// false when it holds "faux", as a condition would.
class AnalyseurBref : public verdane::AnalyseurCodes {
public:
    bool Analyser(verdane::Contexte&, verdane::Texte& texte, bool, bool) override {
        const bool faux = texte.find("faux") != verdane::Texte::npos;
        texte = faux ? "{\\v}" : "[v]";
        return !faux;
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    if (taille == 0) return 0;
    const bool miseAJour = donnees[0] % 2 == 1;
    const std::string_view octets(reinterpret_cast<const char*>(donnees) + 1, taille - 1);
    const std::string modele = fuzz::Ecrire("modele.rtf", octets);
    const std::string resultat = (fuzz::Dossier() / "resultat.rtf").string();
    UtilisateurMuet muet;
    Contexte ctx(muet);
    AnalyseurBref analyseur;
    ctx.analyseur = &analyseur;
    const auto issue =
        CreerDocument(ctx, modele, miseAJour ? modele : resultat, miseAJour, true, false);
    if (issue != IssueCreation::Faite) std::abort();
    std::error_code ec;
    const auto ecrit = std::filesystem::file_size(miseAJour ? modele : resultat, ec);
    // The program's fonts and colours, a line end per piece, a complaint per piece at most.
    if (ec || ecrit > 40000 + 8 * octets.size()) std::abort();
    return 0;
}
