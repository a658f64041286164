#include "graphs/qt/EncodagePng.h"

#include <png.h>

#include <csetjmp>
#include <vector>

namespace verdane::qt {
namespace {

void Ajouter(png_structp png, png_bytep octets, png_size_t taille) {
    static_cast<std::string*>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char*>(octets), taille);
}

void Rien(png_structp) {}

// Writes `image`, of a format of 4 bytes a pixel in memory order B, G, R, A on a little-endian
// machine (RGB32, ARGB32). Kept apart from its caller: nothing here has a destructor to skip
// when libpng jumps back on an error.
bool Ecrire(png_structp png, png_infop info, const QImage& image, bool alpha, std::string& sortie,
            std::vector<png_bytep>& lignes) {
    if (setjmp(png_jmpbuf(png))) return false;
    png_set_write_fn(png, &sortie, Ajouter, Rien);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()),
                 static_cast<png_uint_32>(image.height()), 8,
                 alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    png_set_compression_level(png, 1);
    png_write_info(png, info);
    png_set_bgr(png);
    if (!alpha) png_set_filler(png, 0, PNG_FILLER_AFTER);
    png_write_image(png, lignes.data());
    png_write_end(png, nullptr);
    return true;
}

} // namespace

std::string EncoderPng(const QImage& source) {
    if (source.isNull()) return {};
    const bool alpha = source.hasAlphaChannel();
    const QImage image =
        source.convertToFormat(alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    std::vector<png_bytep> lignes(static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
        lignes[static_cast<std::size_t>(y)] = const_cast<png_bytep>(image.constScanLine(y));
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (!png) return {};
    png_infop info = png_create_info_struct(png);
    std::string sortie;
    const bool ecrit = info && Ecrire(png, info, image, alpha, sortie, lignes);
    png_destroy_write_struct(&png, info ? &info : nullptr);
    return ecrit ? sortie : std::string();
}

} // namespace verdane::qt
