#pragma once
// The word-processor links of this system, plugged into a run: LibreOffice through UNO for
// "soffice.exe", and for Word and Word Pro a link that says they are not available here.
// Made once at start; its end unplugs the links and ends the office it started.

#include "links/PiloteIndisponible.h"
#include "links/PiloteOpenOffice.h"
#include "links/uno/BureauLibreOffice.h"

namespace verdane {

class LiensSysteme {
public:
    // At each start of an office, the program is taken from `CheminEditeur` when it names a
    // LibreOffice of this system (else the one of the system), and the office is shown when
    // `editeurVisible` is set (else headless); `options` gives the rest.
    explicit LiensSysteme(Contexte& ctx, OptionsOffice options = {});
    ~LiensSysteme();
    LiensSysteme(const LiensSysteme&) = delete;
    LiensSysteme& operator=(const LiensSysteme&) = delete;

    BureauLibreOffice& Bureau() { return bureau_; }
    PiloteOpenOffice& Office() { return office_; }

private:
    Contexte& ctx_;
    BureauLibreOffice bureau_;
    PiloteOpenOffice office_;
    PiloteIndisponible word_;
    PiloteIndisponible wordPro_;
};

} // namespace verdane
