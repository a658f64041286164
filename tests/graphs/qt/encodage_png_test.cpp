// The PNG of a chart gives back the very pixels drawn, opaque or not, at every size.

#include "graphs/qt/EncodagePng.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace verdane::qt {
namespace {

QImage Relire(const std::string& png) {
    QImage image;
    image.loadFromData(QByteArray(png.data(), static_cast<qsizetype>(png.size())), "PNG");
    return image;
}

// Flat areas, a gradient, antialiased text and lines: what a chart holds.
QImage Dessin(int largeur, int hauteur, QImage::Format format) {
    QImage image(largeur, hauteur, format);
    image.fill(format == QImage::Format_ARGB32 ? QColor(0, 0, 0, 0) : QColor(Qt::white));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(2, 2, largeur / 2, hauteur / 2, QColor(40, 110, 200));
    p.setPen(QPen(QColor(200, 30, 30, 180), 3));
    p.drawLine(0, hauteur - 1, largeur - 1, 0);
    p.drawText(5, hauteur / 2, "Annees 2024");
    for (int x = 0; x < largeur; ++x) image.setPixelColor(x, hauteur - 1, QColor(x % 256, 7, 99));
    return image;
}

TEST(EncodagePng, LesPixelsReviennentTelsQuels) {
    for (const auto format :
         {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        for (const auto& [l, h] : {std::pair{1280, 840}, std::pair{1, 1}, std::pair{333, 7}}) {
            const QImage image = Dessin(l, h, format);
            const std::string png = EncoderPng(image);
            ASSERT_EQ(png.substr(1, 3), "PNG") << format;
            const QImage relue = Relire(png);
            ASSERT_EQ(relue.size(), image.size());
            EXPECT_EQ(relue.hasAlphaChannel(), image.hasAlphaChannel());
            const QImage attendue = image.convertToFormat(QImage::Format_ARGB32);
            EXPECT_EQ(relue.convertToFormat(QImage::Format_ARGB32), attendue)
                << format << " " << l << "x" << h;
        }
    }
    EXPECT_TRUE(EncoderPng(QImage()).empty());
}

} // namespace
} // namespace verdane::qt
