#include "support/OctetsPlaces.h"
#include "utils/ImageRtf.h"

#include <gtest/gtest.h>

#include <string>

namespace verdane {
namespace {

std::string Png(unsigned largeur, unsigned hauteur) {
    std::string o("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);
    for (unsigned v : {largeur, hauteur})
        for (int d = 24; d >= 0; d -= 8) o += static_cast<char>((v >> d) & 0xFF);
    o += std::string("\x08\x02\0\0\0\x12\x34\x56\x78", 9);
    return o;
}

std::string Jpeg(unsigned char sof, unsigned largeur, unsigned hauteur) {
    std::string o("\xFF\xD8\xFF\xE0\x00\x10JFIF\0\x01\x01\0\0\x01\0\x01\0\0", 20);
    o += std::string("\xFF\xC4\x00\x04\x00\x00", 6); // a table before the frame
    o += '\xFF';
    o += static_cast<char>(sof);
    o += std::string("\x00\x11\x08", 3);
    o += static_cast<char>(hauteur >> 8);
    o += static_cast<char>(hauteur & 0xFF);
    o += static_cast<char>(largeur >> 8);
    o += static_cast<char>(largeur & 0xFF);
    o += std::string(10, '\0');
    o += "\xFF\xD9";
    return o;
}

std::string Bmp(int largeur, int hauteur) {
    return test::OctetsPlaces(54)
        .Chaine(0, "BM", 2)
        .I32(14, 40)
        .I32(18, largeur)
        .I32(22, hauteur)
        .Octets();
}

TEST(ImageRtf, TailleLueDansLEntete) {
    auto png = LireInfoImage(Png(300, 200));
    ASSERT_TRUE(png);
    EXPECT_EQ(png->format, FormatImage::Png);
    EXPECT_EQ(png->largeur, 300);
    EXPECT_EQ(png->hauteur, 200);

    auto jpeg = LireInfoImage(Jpeg(0xC0, 640, 480));
    ASSERT_TRUE(jpeg);
    EXPECT_EQ(jpeg->format, FormatImage::Jpeg);
    EXPECT_EQ(jpeg->largeur, 640);
    EXPECT_EQ(jpeg->hauteur, 480);
    auto progressif = LireInfoImage(Jpeg(0xC2, 33, 17));
    ASSERT_TRUE(progressif);
    EXPECT_EQ(progressif->largeur, 33);

    auto bmp = LireInfoImage(Bmp(4, -3)); // rows stored top down
    ASSERT_TRUE(bmp);
    EXPECT_EQ(bmp->format, FormatImage::Bmp);
    EXPECT_EQ(bmp->largeur, 4);
    EXPECT_EQ(bmp->hauteur, 3);
}

TEST(ImageRtf, GroupePictAutonome) {
    const Texte rtf = ImageVersRtf(Png(3, 2));
    EXPECT_EQ(rtf.rfind("{\\pict\\pngblip\\picw3\\pich2\\picwgoal45\\pichgoal30 ", 0), 0u) << rtf;
    EXPECT_NE(rtf.find("89504e470d0a1a0a"), Texte::npos);
    EXPECT_NE(rtf.find("12345678}"), Texte::npos);
    EXPECT_EQ(rtf.back(), '}');

    const Texte large = ImageVersRtf(Png(3, 2), 900);
    EXPECT_NE(large.find("\\picwgoal900\\pichgoal600 "), Texte::npos);

    EXPECT_EQ(ImageVersRtf(Jpeg(0xC0, 8, 8)).rfind("{\\pict\\jpegblip\\picw8\\pich8", 0), 0u);

    // A bitmap loses its file header: the data starts with the 40 of the info header.
    const Texte dib = ImageVersRtf(Bmp(2, 2));
    EXPECT_EQ(dib.rfind("{\\pict\\dibitmap0\\picw2\\pich2\\picwgoal30\\pichgoal30 \n28000000", 0),
              0u)
        << dib;
}

TEST(ImageRtf, CeQuiNestPasUneImageDonneRien) {
    EXPECT_EQ(ImageVersRtf(""), "");
    EXPECT_EQ(ImageVersRtf(Png(3, 2).substr(0, 20)), "");
    EXPECT_EQ(ImageVersRtf(Png(0, 2)), "");
    EXPECT_EQ(ImageVersRtf(Png(0xFFFFFFFF, 2)), "");
    EXPECT_EQ(ImageVersRtf(Jpeg(0xC0, 8, 8).substr(0, 30)), "");
    EXPECT_EQ(ImageVersRtf(std::string("\xFF\xD8\xFF\xE0\x00\x00", 6)), "");
    EXPECT_EQ(ImageVersRtf(Bmp(4, 0)), "");
    EXPECT_EQ(ImageFichierVersRtf("/chemin/qui/n/existe/pas.png"), "");
}

} // namespace
} // namespace verdane
