#include "links/LiensSansOffice.h"

namespace verdane {

LiensSansOffice::LiensSansOffice(Contexte& ctx)
    : ctx_(ctx), word_(ctx, "Microsoft Word"), wordPro_(ctx, "Lotus Word Pro"),
      office_(ctx, "LibreOffice") {
    ctx_.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word_;
    ctx_.pilotes[static_cast<std::size_t>(Editeur::WordPro)] = &wordPro_;
    ctx_.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &office_;
}

LiensSansOffice::~LiensSansOffice() {
    for (auto*& p : ctx_.pilotes)
        if (p == &word_ || p == &wordPro_ || p == &office_) p = nullptr;
}

} // namespace verdane
