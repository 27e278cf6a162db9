#pragma once

#include "platform/ImageDecoder.h"
#include "store/TooLarge.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace ravelo {

struct CopiedContents;
struct PasteboardSnapshot;

/// What the forms on a pasteboard are, by their types, as far as one was looked at.
using PictureLooks = QHash<QString, PictureLook>;

/// The reading plan for the image on a pasteboard: PNG, else TIFF, else any other picture, else
/// the list of copied files. A form that gave nothing, or nothing that looks like a picture, is
/// passed over for the next; empty once there is one or nothing is left to ask for. Any thread
/// but the main one; `looks` goes from one call of a reading to the next, and is then for those
/// who may not ask the decoder.
[[nodiscard]] QString nextImageType(const PasteboardSnapshot& contents, PictureLooks& looks,
                                    ImageDecoder& decoder);

/// Whether such a reading ended with a form worth keeping, or a list of files.
[[nodiscard]] bool hasGoodImage(const PasteboardSnapshot& contents, const PictureLooks& looks);

/// The largest form that the adapter did not take, or else the one with the most pixels that were
/// too many; nothing if there is none.
[[nodiscard]] std::optional<TooLarge> oversizedImage(const PasteboardSnapshot& contents,
                                                     const PictureLooks& looks);

/// Why a copied file gave no image, if it is too large. For the worker.
[[nodiscard]] std::optional<TooLarge> oversizedFile(const CopiedContents& file,
                                                    ImageDecoder& decoder);

/// The image in what such a reading gave, as PNG: PNG bytes as they are, all else decoded and
/// encoded again. `file` is what is in the file of a list of copied files, see `copiedFile`. Empty
/// if there is none that can be decoded. Takes long: for the worker.
[[nodiscard]] QByteArray pngImage(const PasteboardSnapshot& contents, const QByteArray& file,
                                  ImageDecoder& decoder);

} // namespace ravelo
