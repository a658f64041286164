// libFuzzer entry: bytes taken as the command line of `verdane` (one string, as Marlo passes it)
// and as the arguments of `verdane-lot` (NUL-separated).

#include "shell/Arguments.h"
#include "shell/Lot.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);

    const LigneCommande ligne{Texte(octets)};
    const std::int16_t n = ligne.NbArguments();
    if (n < 0) std::abort();
    for (std::int16_t i = 0; i <= n + 1 && i < 200; ++i)
        if (ligne.Argument(i).size() > octets.size()) std::abort();

    std::vector<Texte> arguments;
    std::vector<const char*> argv{"verdane"};
    std::size_t debut = 0;
    for (std::size_t i = 0; i <= octets.size(); ++i) {
        if (i == octets.size() || octets[i] == '\0') {
            arguments.emplace_back(octets.substr(debut, i - debut));
            debut = i + 1;
        }
    }
    const auto lecture = LireOptionsLot(arguments);
    if (!lecture.options && lecture.erreur.empty()) std::abort();
    // Separate arguments joined into one line, as the program does at its start, and counted.
    for (const Texte& a : arguments) argv.push_back(a.c_str());
    const auto rejointe =
        LigneCommande::DepuisArguments(static_cast<int>(argv.size()), argv.data());
    (void)rejointe.NbArguments();
    return 0;
}
