#include "utils/Binaire.h"

#include <algorithm>
#include <bit>

namespace verdane {

std::uint8_t LecteurBinaire::Lire(std::size_t i) {
    if (i >= octets_.size()) {
        complet_ = false;
        return 0;
    }
    return static_cast<std::uint8_t>(octets_[i]);
}

std::uint8_t LecteurBinaire::Octet() {
    return Lire(position_++);
}

std::int16_t LecteurBinaire::I16() {
    const std::uint16_t v =
        static_cast<std::uint16_t>(Lire(position_) | (Lire(position_ + 1) << 8));
    position_ += 2;
    return static_cast<std::int16_t>(v);
}

std::int32_t LecteurBinaire::I32() {
    std::uint32_t v = 0;
    for (int k = 3; k >= 0; --k) v = (v << 8) | Lire(position_ + static_cast<std::size_t>(k));
    position_ += 4;
    return static_cast<std::int32_t>(v);
}

float LecteurBinaire::F32() {
    return std::bit_cast<float>(static_cast<std::uint32_t>(I32()));
}

double LecteurBinaire::F64() {
    std::uint64_t v = 0;
    for (int k = 7; k >= 0; --k) v = (v << 8) | Lire(position_ + static_cast<std::size_t>(k));
    position_ += 8;
    return std::bit_cast<double>(v);
}

Texte LecteurBinaire::Chaine(std::size_t largeur) {
    Texte t;
    t.reserve(largeur);
    for (std::size_t i = 0; i < largeur; ++i) {
        const bool dedans = position_ + i < octets_.size();
        const auto c = Lire(position_ + i);
        t += dedans ? static_cast<char>(c) : ' ';
    }
    position_ += largeur;
    return t;
}

void EcrivainBinaire::I16(std::int16_t v) {
    const auto u = static_cast<std::uint16_t>(v);
    octets_ += static_cast<char>(u & 0xFF);
    octets_ += static_cast<char>(u >> 8);
}

void EcrivainBinaire::I32(std::int32_t v) {
    auto u = static_cast<std::uint32_t>(v);
    for (int k = 0; k < 4; ++k, u >>= 8) octets_ += static_cast<char>(u & 0xFF);
}

void EcrivainBinaire::F32(float v) {
    I32(static_cast<std::int32_t>(std::bit_cast<std::uint32_t>(v)));
}

void EcrivainBinaire::F64(double v) {
    auto u = std::bit_cast<std::uint64_t>(v);
    for (int k = 0; k < 8; ++k, u >>= 8) octets_ += static_cast<char>(u & 0xFF);
}

void EcrivainBinaire::Chaine(std::string_view texte, std::size_t largeur, char remplissage) {
    const auto n = std::min(texte.size(), largeur);
    octets_.append(texte.substr(0, n));
    octets_.append(largeur - n, remplissage);
}

void EcrivainBinaire::Completer(std::size_t taille) {
    if (octets_.size() < taille) octets_.append(taille - octets_.size(), '\0');
}

} // namespace verdane
