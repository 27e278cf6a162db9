#pragma once

#include "store/images/TooLarge.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace ravelo {

class ImageDecoder;
struct CopiedContents;
struct PasteboardSnapshot;

/// The next type to ask a pasteboard for to get its image: PNG, else TIFF, else any other picture,
/// else the list of copied files. Skips forms that gave nothing, or nothing that starts like a
/// picture, and those in `useless`; empty once there is an image or nothing is left to ask for. Any
/// thread.
[[nodiscard]] QString nextImageType(const PasteboardSnapshot& contents,
                                    const QStringList& useless = {});

/// The form to keep after such a reading, a list of files included; empty if there is none.
[[nodiscard]] QString imageType(const PasteboardSnapshot& contents);

/// Whether an owner of these types has another form to ask for besides those in `useless`.
[[nodiscard]] bool hasOtherForm(const QStringList& types, const QStringList& useless);

/// The largest form that the adapter refused; nothing if there is none.
[[nodiscard]] std::optional<TooLarge> oversizedImage(const PasteboardSnapshot& contents);

/// The image to keep; both are empty if it cannot be decoded.
struct KeptImage {
    QByteArray png;
    std::optional<TooLarge> tooLarge;
};

/// The image of such a reading as PNG: PNG bytes as they are, all others converted. `file` has the
/// contents of the copied file, see `copiedFile`. An image that the decoder could not read back is
/// too large. Takes seconds: not for the main thread.
[[nodiscard]] KeptImage imageToKeep(const PasteboardSnapshot& contents, const CopiedContents& file,
                                    ImageDecoder& decoder);

} // namespace ravelo
