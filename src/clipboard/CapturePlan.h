#pragma once

#include "platform/Pasteboard.h"

#include <QString>

namespace ravelo {

class ImageDecoder;

/// What to ask a pasteboard for, one type after the other: marks of secrecy before any contents,
/// text before images, nothing more once the answer is settled. To be used as a `PasteboardPlan`,
/// on any thread but the main one.
[[nodiscard]] QString nextCaptureType(const PasteboardSnapshot& snapshot, ImageDecoder& decoder);

/// Whether the owner asks that its contents be kept out of histories:
/// "org.nspasteboard.ConcealedType" on offer, or "x-kde-passwordManagerHint" with the value
/// "secret". A hint that cannot be read counts as secret.
[[nodiscard]] bool isConcealed(const PasteboardSnapshot& snapshot);

/// The text that was read, without white space and line breaks at both ends; empty where there is
/// none.
[[nodiscard]] QString capturedText(const PasteboardSnapshot& snapshot);

} // namespace ravelo
