#pragma once

#include "base/Files.h"
#include "decode/Heif.h"
#include "decode/Pictures.h"
#include "platform/ImageDecoder.h"

#include <QByteArrayList>

namespace ravelo {

/// Decodes in this process: for pictures made by tests.
class InProcessDecoder final : public ImageDecoder {
public:
    InProcessDecoder() { decode::readHeifBy(decode::raveloHeif()); }

    PictureLook look(const UntrustedPicture& picture) override {
        using Kind = PictureLook::Kind;
        const decode::Picture found = decoded(picture, {decode::Kind::probe, 0, 0, 0, 0});
        return {found.status == decode::Status::done            ? Kind::good
                : found.status == decode::Status::tooManyPixels ? Kind::tooManyPixels
                                                                : Kind::none,
                found.size};
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

    void forget(const PictureFile& file) override { forgotten.append(file.path); }

    QByteArrayList forgotten;

private:
    static QByteArray bytesOf(const PictureBytes& bytes) { return bytes; }

    static QByteArray bytesOf(const PictureFile& file) {
        const auto bytes = readFileEnd(file.path, decode::maxBytes + 1);
        return bytes && bytes->size() <= decode::maxBytes ? *bytes : QByteArray();
    }

    static decode::Picture decoded(const UntrustedPicture& picture,
                                   const decode::Request& request) {
        return decode::decodePicture(
            request, std::visit([](const auto& kind) { return bytesOf(kind); }, picture));
    }
};

} // namespace ravelo
