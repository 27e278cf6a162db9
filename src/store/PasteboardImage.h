#pragma once

#include "store/TooLarge.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace ravelo {

class ImageDecoder;
struct CopiedContents;
struct PasteboardSnapshot;

/// The reading plan for the image on a pasteboard: PNG, else TIFF, else any other picture, else
/// the list of copied files. A form that gave nothing, or nothing that begins like a picture, is
/// passed over for the next, and so are those that proved `useless`; empty once there is one or
/// nothing is left to ask for. Any thread.
[[nodiscard]] QString nextImageType(const PasteboardSnapshot& contents,
                                    const QStringList& useless = {});

/// The form worth keeping with which such a reading ended, a list of files included; empty if there
/// is none.
[[nodiscard]] QString imageType(const PasteboardSnapshot& contents);

/// Whether an owner of these types has another form to be asked for after those that proved
/// useless.
[[nodiscard]] bool hasOtherForm(const QStringList& types, const QStringList& useless);

/// The largest form that the adapter did not take; nothing if there is none.
[[nodiscard]] std::optional<TooLarge> oversizedImage(const PasteboardSnapshot& contents);

/// What is kept of an image; neither of the two if it cannot be decoded.
struct KeptImage {
    QByteArray png;
    std::optional<TooLarge> tooLarge;
};

/// The image in what such a reading gave, as PNG: PNG bytes as they are, all else decoded and
/// encoded again. `file` is what is in the file of a list of copied files, see `copiedFile`. What
/// the decoder would not read back is too large. Takes seconds; any thread but the main one.
[[nodiscard]] KeptImage imageToKeep(const PasteboardSnapshot& contents, const CopiedContents& file,
                                    ImageDecoder& decoder);

} // namespace ravelo
