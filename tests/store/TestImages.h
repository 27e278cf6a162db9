#pragma once

#include <QBuffer>
#include <QImage>

namespace ravelo {

/// A small picture of one colour as a file of this format ("png", "tiff", "bmp", ...).
inline QByteArray picture(const char* format, QColor color) {
    QImage image(24, 16, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    return image.save(&buffer, format) ? buffer.data() : QByteArray();
}

/// The primary colour nearest to that of the picture; "none" if it is no PNG.
inline std::string colorOf(const QByteArray& png) {
    const QImage image = QImage::fromData(png, "png");
    if (image.isNull()) {
        return "none";
    }
    const QColor color = image.pixelColor(8, 8);
    return color.red() > 200 ? "red" : color.green() > 100 ? "green" : "blue";
}

} // namespace ravelo
