#include "utils/ImageRtf.h"

#include "utils/OutilsFichiers.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace verdane {

namespace {

constexpr int kTwipsParPixel = 15; // 96 pixels per inch
constexpr int kMaxPixels = 1 << 16;

std::uint32_t Octet(std::string_view o, std::size_t i) {
    return i < o.size() ? static_cast<unsigned char>(o[i]) : 0u;
}
std::uint32_t GrandBout16(std::string_view o, std::size_t i) {
    return Octet(o, i) << 8 | Octet(o, i + 1);
}
std::uint32_t GrandBout32(std::string_view o, std::size_t i) {
    return GrandBout16(o, i) << 16 | GrandBout16(o, i + 2);
}
std::int32_t PetitBout32(std::string_view o, std::size_t i) {
    return static_cast<std::int32_t>(Octet(o, i) | Octet(o, i + 1) << 8 | Octet(o, i + 2) << 16 |
                                     Octet(o, i + 3) << 24);
}

bool TailleValide(long long l, long long h) {
    return l > 0 && h > 0 && l <= kMaxPixels && h <= kMaxPixels;
}

std::optional<InfoImage> InfoPng(std::string_view o) {
    // Signature, then the IHDR chunk: length, type, width, height (big-endian).
    if (o.size() < 24 || o.substr(12, 4) != "IHDR") return std::nullopt;
    const long long l = GrandBout32(o, 16), h = GrandBout32(o, 20);
    if (!TailleValide(l, h)) return std::nullopt;
    return InfoImage{FormatImage::Png, static_cast<int>(l), static_cast<int>(h)};
}

std::optional<InfoImage> InfoJpeg(std::string_view o) {
    // Walk the segments up to a start-of-frame marker (SOF0 to SOF15 but DHT, JPG and DAC).
    std::size_t i = 2;
    while (i + 4 <= o.size()) {
        if (Octet(o, i) != 0xFF) return std::nullopt;
        const std::uint32_t marqueur = Octet(o, i + 1);
        if (marqueur == 0xFF) {
            ++i;
            continue;
        }
        if (marqueur == 0xD8 || marqueur == 0x01 || (marqueur >= 0xD0 && marqueur <= 0xD7)) {
            i += 2;
            continue;
        }
        if (marqueur == 0xD9 || marqueur == 0xDA) return std::nullopt;
        const std::uint32_t longueur = GrandBout16(o, i + 2);
        if (marqueur >= 0xC0 && marqueur <= 0xCF && marqueur != 0xC4 && marqueur != 0xC8 &&
            marqueur != 0xCC) {
            if (i + 9 > o.size()) return std::nullopt;
            const long long h = GrandBout16(o, i + 5), l = GrandBout16(o, i + 7);
            if (!TailleValide(l, h)) return std::nullopt;
            return InfoImage{FormatImage::Jpeg, static_cast<int>(l), static_cast<int>(h)};
        }
        if (longueur < 2) return std::nullopt;
        i += 2 + longueur;
    }
    return std::nullopt;
}

std::optional<InfoImage> InfoBmp(std::string_view o) {
    if (o.size() < 26) return std::nullopt;
    const std::int32_t entete = PetitBout32(o, 14);
    long long l = 0, h = 0;
    if (entete == 12) { // OS/2 header: 16-bit sizes
        l = Octet(o, 18) | Octet(o, 19) << 8;
        h = Octet(o, 20) | Octet(o, 21) << 8;
    } else if (entete >= 40) {
        l = PetitBout32(o, 18);
        h = std::llabs(static_cast<long long>(PetitBout32(o, 22)));
    }
    if (!TailleValide(l, h)) return std::nullopt;
    return InfoImage{FormatImage::Bmp, static_cast<int>(l), static_cast<int>(h)};
}

void Hexa(std::string_view octets, Texte& sortie) {
    static constexpr char kChiffres[] = "0123456789abcdef";
    sortie.reserve(sortie.size() + octets.size() * 2 + octets.size() / 64 + 4);
    for (std::size_t i = 0; i < octets.size(); ++i) {
        if (i % 64 == 0) sortie += '\n';
        const auto b = static_cast<unsigned char>(octets[i]);
        sortie += kChiffres[b >> 4];
        sortie += kChiffres[b & 15];
    }
}

} // namespace

std::optional<InfoImage> LireInfoImage(std::string_view o) {
    if (o.substr(0, 8) == std::string_view("\x89PNG\r\n\x1a\n", 8)) return InfoPng(o);
    if (Octet(o, 0) == 0xFF && Octet(o, 1) == 0xD8) return InfoJpeg(o);
    if (o.substr(0, 2) == "BM") return InfoBmp(o);
    return std::nullopt;
}

Texte ImageVersRtf(std::string_view octets, int largeurTwips) {
    const auto info = LireInfoImage(octets);
    if (!info) return {};
    long long largeur = static_cast<long long>(info->largeur) * kTwipsParPixel;
    long long hauteur = static_cast<long long>(info->hauteur) * kTwipsParPixel;
    if (largeurTwips > 0) {
        hauteur = hauteur * largeurTwips / largeur;
        largeur = largeurTwips;
    }
    Texte rtf = "{\\pict";
    std::string_view donnees = octets;
    switch (info->format) {
    case FormatImage::Png:
        rtf += "\\pngblip";
        break;
    case FormatImage::Jpeg:
        rtf += "\\jpegblip";
        break;
    case FormatImage::Bmp:
        // A device-independent bitmap: the file without its 14-byte header.
        rtf += "\\dibitmap0";
        donnees = octets.substr(14);
        break;
    }
    rtf += "\\picw" + std::to_string(info->largeur) + "\\pich" + std::to_string(info->hauteur) +
           "\\picwgoal" + std::to_string(largeur) + "\\pichgoal" + std::to_string(hauteur) + " ";
    Hexa(donnees, rtf);
    rtf += "}";
    return rtf;
}

Texte ImageFichierVersRtf(std::string_view chemin, int largeurTwips) {
    const auto octets = LireFichier(chemin);
    if (!octets) return {};
    return ImageVersRtf(*octets, largeurTwips);
}

} // namespace verdane
