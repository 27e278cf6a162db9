#pragma once

#include <QBuffer>
#include <QImage>

namespace ravelo {

/// The image as a file of this format ("png", "tiff", "bmp", ...).
inline QByteArray encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    return image.save(&buffer, format) ? buffer.data() : QByteArray();
}

/// A picture of one colour.
inline QByteArray picture(const char* format, QColor color = Qt::red, QSize size = {24, 16}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return encoded(image, format);
}

/// A picture of many pixels and few bytes.
inline QByteArray emptyPicture(const char* format, QSize size) {
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    return encoded(image, format);
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
