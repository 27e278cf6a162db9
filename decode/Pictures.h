#pragma once

#include "decode/Protocol.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace ravelo::decode {

/// One of them, by the kind of request: `size` always if it is a picture, `image` for a fill or an
/// icon, `png`.
struct Picture {
    Status status = Status::refused;
    QSize size; ///< Empty if it is no picture.
    QImage image;
    QByteArray png;
};

/// Reads untrusted bytes: only in a process that is locked down. Needs no application object.
[[nodiscard]] Picture decodePicture(const Request& request, const QByteArray& bytes);

/// Loads everything that reading and writing a picture of any format needs of the disk.
void loadFormats();

} // namespace ravelo::decode
