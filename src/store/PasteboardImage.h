#pragma once

#include <QByteArray>
#include <QString>

namespace ravelo {

class ImageDecoder;
struct PasteboardSnapshot;

/// The reading plan for the image on a pasteboard: PNG, else TIFF, else any other picture, else
/// the list of copied files. A form that gave nothing, or nothing that looks like a picture, is
/// passed over for the next; empty once there is one or nothing is left to ask for. Any thread but
/// the main one.
[[nodiscard]] QString nextImageType(const PasteboardSnapshot& contents, ImageDecoder& decoder);

/// The image in what such a reading gave, as PNG: PNG bytes as they are, all else decoded and
/// encoded again, also the first file of a list of copied files. Empty where there is none that can
/// be decoded. Takes long and reads files: for the worker.
[[nodiscard]] QByteArray pngImage(const PasteboardSnapshot& contents, ImageDecoder& decoder);

} // namespace ravelo
