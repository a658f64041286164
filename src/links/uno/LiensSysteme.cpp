#include "links/uno/LiensSysteme.h"

#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {
OptionsOffice AvecExecutable(const Contexte& ctx, OptionsOffice options) {
    if (options.executable.empty() && EditeurCourant(ctx.etat) == "soffice.exe") {
        const Texte chemin = Rogner(ctx.etat.options.CheminEditeur);
        if (!chemin.empty() && chemin[0] == '/' && FichierExiste(chemin))
            options.executable = CheminTexte(CheminSysteme(chemin));
    }
    return options;
}
} // namespace

LiensSysteme::LiensSysteme(Contexte& ctx, OptionsOffice options)
    : ctx_(ctx), bureau_(AvecExecutable(ctx, std::move(options))), office_(ctx, bureau_),
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
