#pragma once
// The files of one run, reached without redoing work: a name is resolved once (the listing of
// its folder is kept and read again only when the folder's modification time has changed), a
// record is read by one open, one positioned read and one close, and a whole file is kept
// while its size and modification time stay those it was read with. Nothing here keeps a file
// open between two calls, so a change made by another program is seen by the next read.
//
// The listings are checked against their folder's time once per document (`NouveauDocument`)
// and whenever a file that was resolved can't be opened any more.

#include "utils/Texte.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace verdane {

class CacheFichiers {
public:
    // Whole files above this size are read each time rather than kept.
    static constexpr std::size_t kTailleGardee = 1 << 20;

    CacheFichiers() = default;
    // A copy starts empty: what is kept is only ever a shortcut.
    CacheFichiers(const CacheFichiers&);
    CacheFichiers& operator=(const CacheFichiers&);

    // The path as the file system takes it, as `CheminSysteme` gives it.
    const std::string& Resoudre(std::string_view chemin);

    // Reads at most `taille` bytes from `position` into `tampon`: the count read (0 past the end
    // or for an empty file), or -1 when the file can't be opened.
    long LireDans(std::string_view chemin, std::uint64_t position, char* tampon,
                  std::size_t taille);

    // The whole content of a file, or null when it can't be read.
    std::shared_ptr<const std::string> LireFichier(std::string_view chemin);

    // True for an existing regular file.
    bool Existe(std::string_view chemin);

    // The listings are to be checked again against their folder's time at their next use.
    void NouveauDocument();

private:
    struct Liste {
        Texte texte;         // the folder as asked for
        std::string dossier; // system path of the folder, with its final separator
        std::int64_t temps = -1;
        unsigned generation = 0;
        bool lu = false;
        bool aVerifier = false;
        std::vector<std::string> noms; // UTF-8, in the order of the folder
    };
    struct Nom {
        std::string systeme;
        Liste* liste = nullptr;  // null: resolved without a listing of its own
        Texte nom;               // the name asked for, in the folder
        unsigned generation = 0; // of the listing it was resolved with
    };
    struct Contenu {
        std::int64_t taille = -1;
        std::int64_t temps = 0;
        std::shared_ptr<const std::string> octets;
    };

    Nom& Entree(std::string_view chemin);
    void Lister(Liste& liste);
    // Reads the listing again if its folder's time changed; true if it did.
    bool Verifier(Liste& liste);
    // The same for the folder of a name, which is then resolved again.
    bool Rafraichir(Nom& nom);
    void ResoudreDans(Nom& nom);

    std::unordered_map<Texte, std::unique_ptr<Liste>> listes_;
    std::unordered_map<Texte, Nom> noms_;
    std::unordered_map<std::string, Contenu> contenus_;
};

} // namespace verdane
