#pragma once
// A record's bytes written field by field at the offsets of its layout, independently of the
// program's own writers: little-endian numbers, fixed strings padded with blanks, zeros
// elsewhere. Tests build dossier files with it as Marlo writes them.

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane::test {

class OctetsPlaces {
public:
    explicit OctetsPlaces(std::size_t taille) : octets_(taille, '\0') {}

    OctetsPlaces& I16(std::size_t position, std::int16_t v) {
        return Entier(position, static_cast<std::uint16_t>(v), 2);
    }
    OctetsPlaces& I32(std::size_t position, std::int32_t v) {
        return Entier(position, static_cast<std::uint32_t>(v), 4);
    }
    OctetsPlaces& F32(std::size_t position, float v) {
        return Entier(position, std::bit_cast<std::uint32_t>(v), 4);
    }
    OctetsPlaces& F64(std::size_t position, double v) {
        return Entier(position, std::bit_cast<std::uint64_t>(v), 8);
    }
    // `n` float32 from `position`, the k-th being `premier + k * pas`.
    OctetsPlaces& F32s(std::size_t position, std::size_t n, float premier, float pas) {
        for (std::size_t k = 0; k < n; ++k)
            F32(position + 4 * k, premier + pas * static_cast<float>(k));
        return *this;
    }
    OctetsPlaces& Chaine(std::size_t position, std::string_view texte, std::size_t largeur) {
        for (std::size_t i = 0; i < largeur; ++i)
            octets_.at(position + i) = i < texte.size() ? texte[i] : ' ';
        return *this;
    }
    const std::string& Octets() const { return octets_; }

private:
    OctetsPlaces& Entier(std::size_t position, std::uint64_t v, std::size_t largeur) {
        for (std::size_t i = 0; i < largeur; ++i, v >>= 8)
            octets_.at(position + i) = static_cast<char>(v & 0xFF);
        return *this;
    }
    std::string octets_;
};

} // namespace verdane::test
