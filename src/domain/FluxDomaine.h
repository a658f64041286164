#pragma once
// Both sides of the fixed records of the investment, crop and plan files: the same layout
// description, written once, reads a record from its bytes or writes them. Fields sit at
// fixed offsets (`Aller`), so gaps the program doesn't read stay zero in what it writes.

#include "utils/Binaire.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

struct FluxLectureDomaine {
    LecteurBinaire l;
    void Aller(std::size_t position) { l.Placer(position); }
    void Chaine(Texte& t, std::size_t n) { t = l.Chaine(n); }
    void I16(std::int16_t& v) { v = l.I16(); }
    void I32(std::int32_t& v) { v = l.I32(); }
    void F32(float& v) { v = l.F32(); }
    void F64(double& v) { v = l.F64(); }
    template <std::size_t N> void F32s(std::array<float, N>& v) {
        for (auto& x : v) x = l.F32();
    }
};

struct FluxEcritureDomaine {
    EcrivainBinaire e;
    void Aller(std::size_t position) { e.Completer(position); }
    void Chaine(const Texte& t, std::size_t n) { e.Chaine(t, n); }
    void I16(std::int16_t v) { e.I16(v); }
    void I32(std::int32_t v) { e.I32(v); }
    void F32(float v) { e.F32(v); }
    void F64(double v) { e.F64(v); }
    template <std::size_t N> void F32s(const std::array<float, N>& v) {
        for (float x : v) e.F32(x);
    }
};

// A record of `taille` bytes through its layout description, a callable (flux, record).
template <typename Enr, typename Description>
Enr LireEnrDomaine(std::string_view octets, Description description) {
    Enr enr;
    FluxLectureDomaine f{LecteurBinaire(octets)};
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
