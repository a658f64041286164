#pragma once
// The links of a build without any word processor it can drive: each of the three says, when
// used or chosen, that it is not available on this system. Plugged into a run for its life.

#include "links/PiloteIndisponible.h"

namespace verdane {

class LiensSansOffice {
public:
    explicit LiensSansOffice(Contexte& ctx);
    ~LiensSansOffice();
    LiensSansOffice(const LiensSansOffice&) = delete;
    LiensSansOffice& operator=(const LiensSansOffice&) = delete;

private:
    Contexte& ctx_;
    PiloteIndisponible word_;
    PiloteIndisponible wordPro_;
    PiloteIndisponible office_;
};

} // namespace verdane
