#pragma once

#include "decode/Pictures.h"
#include "platform/ImageDecoder.h"

#include <QFile>
#include <QFileInfo>

namespace ravelo {

/// Decodes right here, as the real one does in its process: fit for pictures that tests make.
class InProcessDecoder final : public ImageDecoder {
public:
    QSize size(const UntrustedPicture& picture) override {
        return decoded(picture, {decode::Kind::probe, 0, 0, 0, 0}).size;
    }

    QImage filling(const UntrustedPicture& picture, PictureShape shape) override {
        const decode::Request request{decode::Kind::fill, shape.height, shape.minWidth,
                                      shape.maxWidth, 0};
        return decoded(picture, request).image;
    }

    QImage icon(const PictureFile& file, int size) override {
        return decoded(file, {decode::Kind::icon, size, 1, size, 0}).image;
    }

    QByteArray png(const UntrustedPicture& picture) override {
        return decoded(picture, {decode::Kind::png, 0, 0, 0, 0}).png;
    }

private:
    static QByteArray bytesOf(const PictureBytes& bytes) { return bytes; }

    static QByteArray bytesOf(const PictureFile& file) {
        QFile opened(file.path);
        const bool readable = QFileInfo(file.path).isFile() && opened.size() <= decode::maxInput &&
                              opened.open(QFile::ReadOnly);
        return readable ? opened.readAll() : QByteArray();
    }

    static decode::Picture decoded(const UntrustedPicture& picture,
                                   const decode::Request& request) {
        return decode::decodePicture(
            request, std::visit([](const auto& kind) { return bytesOf(kind); }, picture));
    }
};

} // namespace ravelo
