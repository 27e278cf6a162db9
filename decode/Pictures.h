#pragma once

#include "decode/Protocol.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace ravelo::decode {

/// `size` if it is a picture, and `image` or `png` depending on the request.
struct Picture {
    Status status = Status::refused;
    QSize size; ///< Empty if it is not a picture.
    QImage image;
    QByteArray png;
};

/// Reads untrusted bytes: only in a process that is locked down. Needs no application object.
[[nodiscard]] Picture decodePicture(const Request& request, const QByteArray& bytes);

struct HeifReader;

/// HEIF is refused without; null for none. Before the first picture.
void readHeifBy(const HeifReader* reader);

/// `all` but HEIF; `png` is for reading only.
enum class Formats { png, all };

/// Loads everything from the disk that is needed to read and write these formats.
void loadFormats(Formats formats = Formats::all);

} // namespace ravelo::decode
