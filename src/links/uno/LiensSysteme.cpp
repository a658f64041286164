#include "links/uno/LiensSysteme.h"

#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

// The office program named by the user's choice, when it names a LibreOffice of this system.
std::string ExecutableChoisi(const Etat& etat) {
    if (EditeurCourant(etat) != "soffice.exe") return {};
    const Texte chemin = Rogner(etat.options.CheminEditeur);
    if (chemin.empty() || !EstSeparateur(chemin[0]) || !FichierExiste(chemin)) return {};
    return CheminSysteme(chemin).string();
}

// The choices that are the user's are read when an office starts, not when the links are
// made: the options file is read after.
OptionsOffice AvecChoixDuMoment(const Contexte& ctx, OptionsOffice options) {
    const Etat& etat = ctx.etat;
    if (!options.executableChoisi)
        options.executableChoisi = [&etat] { return ExecutableChoisi(etat); };
    if (!options.officeVisible) options.officeVisible = [&etat] { return etat.editeurVisible; };
    return options;
}

} // namespace

LiensSysteme::LiensSysteme(Contexte& ctx, OptionsOffice options)
    : ctx_(ctx), bureau_(AvecChoixDuMoment(ctx, std::move(options))), office_(ctx, bureau_),
      word_(ctx, "Microsoft Word"), wordPro_(ctx, "Lotus Word Pro") {
    ctx_.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word_;
    ctx_.pilotes[static_cast<std::size_t>(Editeur::WordPro)] = &wordPro_;
    ctx_.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &office_;
}

LiensSysteme::~LiensSysteme() {
    for (auto*& p : ctx_.pilotes)
        if (p == &word_ || p == &wordPro_ || p == &office_) p = nullptr;
    bureau_.Terminer();
}

} // namespace verdane
