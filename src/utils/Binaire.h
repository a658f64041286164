#pragma once
// Fixed-layout records of the files of Marlo and of the program: little-endian numbers and
// fixed strings of single-byte text padded with blanks (trimmed at use, never at reading).
// Reading outside the bytes given yields zeros and blanks, never a fault.

#include "utils/Texte.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

class LecteurBinaire {
public:
    explicit LecteurBinaire(std::string_view octets, std::size_t position = 0)
        : octets_(octets), position_(position) {}

    std::int16_t I16();
    std::int32_t I32();
    float F32();
    double F64();
    std::uint8_t Octet();
    // A fixed string of `largeur` bytes, as it stands (padding kept).
    Texte Chaine(std::size_t largeur);
    void Sauter(std::size_t n) { position_ += n; }
    void Placer(std::size_t position) { position_ = position; }
    std::size_t Position() const { return position_; }
    // True while every byte read so far lay inside the data.
    bool Complet() const { return complet_; }

private:
    std::uint8_t Lire(std::size_t i);
    std::string_view octets_;
    std::size_t position_;
    bool complet_ = true;
};

class EcrivainBinaire {
public:
    void I16(std::int16_t v);
    void I32(std::int32_t v);
    void F32(float v);
    void F64(double v);
    void Octet(std::uint8_t v) { octets_ += static_cast<char>(v); }
    // A fixed string: cut or padded with blanks to `largeur`.
    void Chaine(std::string_view texte, std::size_t largeur, char remplissage = ' ');
    void Octets(std::string_view o) { octets_ += o; }
    // Pads with zero bytes up to `taille` bytes in all.
    void Completer(std::size_t taille);
    const std::string& Octets() const { return octets_; }
    std::string& Octets() { return octets_; }

private:
    std::string octets_;
};

} // namespace verdane
