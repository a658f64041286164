#pragma once
// The PNG of a chart, written for speed: one cheap row filter and the fastest compression. A
// chart is flat colour, which packs well either way; the writer's default tries every filter
// on every row and costs several times the drawing.

#include <QImage>

#include <string>

namespace verdane::qt {

// The picture as PNG, 8-bit RGB (an opaque image) or RGBA; empty on failure.
std::string EncoderPng(const QImage& image);

} // namespace verdane::qt
