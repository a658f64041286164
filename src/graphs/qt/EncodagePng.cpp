#include "graphs/qt/EncodagePng.h"

#include <zlib.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace verdane::qt {
namespace {

constexpr std::array<unsigned char, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr unsigned char kFiltreGauche = 1;
constexpr unsigned char kFiltreHaut = 2;

void Ajouter32(std::string& s, std::uint32_t n) {
    s += static_cast<char>(n >> 24);
    s += static_cast<char>(n >> 16);
    s += static_cast<char>(n >> 8);
    s += static_cast<char>(n);
}

// A chunk: its length, its type and data, and the CRC of both.
void Bloc(std::string& png, const char* type, std::string_view donnees) {
    Ajouter32(png, static_cast<std::uint32_t>(donnees.size()));
    const std::size_t debut = png.size();
    png.append(type, 4);
    png.append(donnees);
    const auto* octets = reinterpret_cast<const Bytef*>(png.data() + debut);
    Ajouter32(png, static_cast<std::uint32_t>(
                       crc32_z(0, octets, static_cast<z_size_t>(png.size() - debut))));
}

// A pixel of the picture (0xAARRGGBB) as the PNG bytes R, G, B, A in memory order, as a
// little-endian word.
inline std::uint32_t OctetsPng(std::uint32_t argb) {
    const std::uint32_t bgra = __builtin_bswap32(argb);
    return (bgra >> 8) | (bgra << 24);
}

// Byte by byte a - b, each byte modulo 256.
inline std::uint32_t Difference(std::uint32_t a, std::uint32_t b) {
    constexpr std::uint32_t h = 0x80808080u;
    return ((a | h) - (b & ~h)) ^ ((a ^ ~b) & h);
}

// One row of the picture as PNG bytes, filtered, its filter byte in front: `N` bytes a pixel
// (3 drops the alpha). `avant` holds the previous row's pixels unfiltered, and takes this
// row's. `o` has room for one byte more than the row.
template <int N>
void Ligne(const std::uint32_t* p, std::size_t largeur, unsigned char filtre, std::uint32_t* avant,
           unsigned char* o) {
    *o++ = filtre;
    std::uint32_t gauche = 0;
    for (std::size_t x = 0; x < largeur; ++x, o += N) {
        const std::uint32_t v = OctetsPng(p[x]);
        const std::uint32_t retire = filtre == kFiltreGauche ? gauche
                                     : filtre == kFiltreHaut ? avant[x]
                                                             : 0;
        const std::uint32_t d = Difference(v, retire);
        std::memcpy(o, &d, 4);
        gauche = v;
        avant[x] = v;
    }
}

// The checksum of the zlib stream.
class Adler {
public:
    void Ajouter(const unsigned char* octets, std::size_t n) {
        valeur_ = static_cast<std::uint32_t>(adler32_z(valeur_, octets, n));
    }
    // One byte `octet`, then `n` zeros: they leave the sum of the bytes as it is and add it
    // `n` times to the sum of the sums.
    void AjouterFiltreEtZeros(unsigned char octet, std::size_t n) {
        std::uint64_t s1 = valeur_ & 0xFFFF, s2 = valeur_ >> 16;
        s1 = (s1 + octet) % kBase;
        s2 = (s2 + s1 + (n % kBase) * s1) % kBase;
        valeur_ = static_cast<std::uint32_t>((s2 << 16) | s1);
    }
    std::uint32_t Valeur() const { return valeur_; }

private:
    static constexpr std::uint64_t kBase = 65521;
    std::uint32_t valeur_ = 1;
};

// Compressed bytes go out by blocks of this size.
constexpr std::size_t kBlocSortie = 1 << 16;

// Runs deflate over what `z` has in, appending what comes out to `sortie`.
bool Compresser(z_stream& z, int vidage, std::string& sortie) {
    unsigned char bloc[kBlocSortie];
    int r = Z_OK;
    do {
        z.next_out = bloc;
        z.avail_out = kBlocSortie;
        r = deflate(&z, vidage);
        if (r == Z_STREAM_ERROR) return false;
        sortie.append(reinterpret_cast<const char*>(bloc), kBlocSortie - z.avail_out);
    } while (z.avail_out == 0 || (vidage == Z_FINISH && r != Z_STREAM_END));
    return true;
}

} // namespace

ReglagesPng ReglagesPngGraphiques() {
    return {kFiltreHaut, 1, Z_RLE};
}

std::string EncoderPng(const QImage& source) {
    return EncoderPng(source, ReglagesPngGraphiques());
}

std::string EncoderPng(const QImage& source, const ReglagesPng& reglages) {
    if (source.isNull()) return {};
    const bool alpha = source.hasAlphaChannel();
    const QImage image =
        source.convertToFormat(alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const std::size_t parPixel = alpha ? 4 : 3;
    const auto largeur = static_cast<std::uint32_t>(image.width());
    const auto hauteur = static_cast<std::uint32_t>(image.height());

    std::string png(reinterpret_cast<const char*>(kSignature.data()), kSignature.size());
    std::string entete;
    Ajouter32(entete, largeur);
    Ajouter32(entete, hauteur);
    entete += std::string{8, static_cast<char>(alpha ? 6 : 2), 0, 0, 0};
    Bloc(png, "IHDR", entete);

    // A raw deflate stream in the zlib wrapper written here, so that the checksum of a row
    // equal to the one above (all zeros once filtered by "up") costs nothing.
    z_stream z{};
    if (deflateInit2(&z, reglages.niveau, Z_DEFLATED, -15, 8, reglages.strategie) != Z_OK)
        return {};
    const auto filtre = static_cast<unsigned char>(reglages.filtre);
    const std::size_t octetsLigne = 1 + parPixel * largeur;
    std::vector<unsigned char> ligne(octetsLigne + 1), zeros(octetsLigne, 0);
    zeros[0] = kFiltreHaut;
    std::vector<std::uint32_t> avant(largeur, 0);
    std::string donnees = {0x78, 0x01};
    Adler adler;
    bool ok = true;
    for (int y = 0; y < image.height() && ok; ++y) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
        if (filtre == kFiltreHaut && y > 0 &&
            std::memcmp(pixels, image.constScanLine(y - 1), largeur * 4) == 0) {
            z.next_in = zeros.data();
            adler.AjouterFiltreEtZeros(kFiltreHaut, octetsLigne - 1);
        } else {
            if (alpha)
                Ligne<4>(pixels, largeur, filtre, avant.data(), ligne.data());
            else
                Ligne<3>(pixels, largeur, filtre, avant.data(), ligne.data());
            z.next_in = ligne.data();
            adler.Ajouter(ligne.data(), octetsLigne);
        }
        z.avail_in = static_cast<uInt>(octetsLigne);
        ok = Compresser(z, Z_NO_FLUSH, donnees);
    }
    ok = ok && Compresser(z, Z_FINISH, donnees);
    deflateEnd(&z);
    if (!ok) return {};
    Ajouter32(donnees, adler.Valeur());
    Bloc(png, "IDAT", donnees);
    Bloc(png, "IEND", {});
    return png;
}

} // namespace verdane::qt
