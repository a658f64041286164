#pragma once
// Both sides of the fixed records of the investment, crop and plan files: the same layout
// description, written once, reads a record from its bytes or writes them. Fields sit at
// fixed offsets (`Aller`), so gaps the program doesn't read stay zero in what it writes.

#include "utils/FluxEnregistrement.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

// The fluxes of the dossier records, with a position to go to, doubles and arrays.
struct FluxLectureDomaine : FluxLecture {
    void Aller(std::size_t position) { l.Placer(position); }
    void F64(double& v) { v = l.F64(); }
    template <std::size_t N> void F32s(std::array<float, N>& v) {
        for (auto& x : v) x = l.F32();
    }
};

struct FluxEcritureDomaine : FluxEcriture {
    void Aller(std::size_t position) { e.Completer(position); }
    void F64(double v) { e.F64(v); }
    template <std::size_t N> void F32s(const std::array<float, N>& v) {
        for (float x : v) e.F32(x);
    }
};

// A record of `taille` bytes through its layout description, a callable (flux, record).
template <typename Enr, typename Description>
Enr LireEnrDomaine(std::string_view octets, Description description) {
    Enr enr;
    FluxLectureDomaine f{{LecteurBinaire(octets)}};
    description(f, enr);
    return enr;
}

template <typename Enr, typename Description>
std::string EcrireEnrDomaine(const Enr& enr, std::size_t taille, Description description) {
    FluxEcritureDomaine f;
    description(f, enr);
    f.e.Completer(taille);
    std::string octets = f.e.Octets();
    octets.resize(taille);
    return octets;
}

} // namespace verdane
