#pragma once

#include "platform/ImageDecoder.h"

#include <QByteArray>
#include <QList>
#include <QSize>

#include <array>

namespace ravelo {

/// Empty if it is not a picture that can be read whole.
inline QSize sizeOf(ImageDecoder& decoder, const UntrustedPicture& picture) {
    const PictureLook seen = decoder.look(picture);
    return seen.kind == PictureLook::Kind::good ? seen.size : QSize();
}

namespace samples {

inline constexpr std::array formats{"png", "jpeg", "gif", "bmp", "webp", "tiff", "heif"};

inline constexpr QSize size(64, 32);

/// A valid picture of the format, of that size and all green.
[[nodiscard]] QByteArray picture(const QByteArray& format);

/// The picture with its bytes cut off, flipped, overwritten, or with huge numbers in it.
[[nodiscard]] QByteArray broken(const QByteArray& picture, quint32 seed);

/// Valid or nearly so, and made to exhaust some resource or to pass for another format.
struct Bomb {
    const char* name;
    QByteArray bytes;
};

[[nodiscard]] QList<Bomb> bombs();

} // namespace samples

} // namespace ravelo
