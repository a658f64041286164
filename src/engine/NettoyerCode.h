#pragma once
// The cleaning of a code: word processors put RTF inside a mark (font changes, bookmarks, line
// ends); none of it means anything there.

#include "utils/Texte.h"

#include <string_view>

namespace verdane {

// Takes the RTF noise out of `code`, in place. Blanks go too: a blank in a code is written "_".
void NettoyerCode(Texte& code);

// If `code` holds `mot`: the one digit right behind it is removed if there is one, else `mot`
// itself; result 1. Result -1, nothing changed, if `mot` isn't there.
int RetirerMotRtf(Texte& code, std::string_view mot);

} // namespace verdane
