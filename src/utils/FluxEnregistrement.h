#pragma once
// The two sides of a fixed record layout: a layout is written once as a template over a flux,
// and the same description reads the record from its bytes or writes its bytes.

#include "utils/Binaire.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

struct FluxLecture {
    LecteurBinaire l;
    void Chaine(Texte& t, std::size_t n) { t = l.Chaine(n); }
    void I16(std::int16_t& v) { v = l.I16(); }
    void I32(std::int32_t& v) { v = l.I32(); }
    void F32(float& v) { v = l.F32(); }
};

struct FluxEcriture {
    EcrivainBinaire e;
    void Chaine(const Texte& t, std::size_t n) { e.Chaine(t, n); }
    void I16(std::int16_t v) { e.I16(v); }
    void I32(std::int32_t v) { e.I32(v); }
    void F32(float v) { e.F32(v); }
};

// A record read or written through its layout description, a callable taking (flux, record).
template <typename Enr, typename Description>
Enr LireSelon(std::string_view octets, Description description) {
    Enr enr;
    FluxLecture lecture{LecteurBinaire(octets)};
    description(lecture, enr);
    return enr;
}

template <typename Enr, typename Description>
std::string EcrireSelon(const Enr& enr, Description description) {
    FluxEcriture ecriture;
    description(ecriture, enr);
    return ecriture.e.Octets();
}

} // namespace verdane
