#pragma once

#include "platform/Pasteboard.h"
#include "store/PasteboardImage.h"

#include <QString>

namespace ravelo {

/// What to ask a pasteboard for, one type after the other: marks of secrecy before any contents,
/// text before images, nothing more once the answer is settled. To be used as a `PasteboardPlan`,
/// on any thread; for `useless` see `nextImageType`.
[[nodiscard]] QString nextCaptureType(const PasteboardSnapshot& snapshot,
                                      const QStringList& useless = {});

/// Whether the owner asks that its contents be kept out of histories:
/// "org.nspasteboard.ConcealedType" on offer, or "x-kde-passwordManagerHint" with the value
/// "secret". A hint that cannot be read counts as secret.
[[nodiscard]] bool isConcealed(const PasteboardSnapshot& snapshot);

/// What becomes of white space and line breaks at both ends of a text.
enum class TextEnds { trimmed, kept };

/// The text that was read; empty if there is nothing but white space. Of several files it is a line
/// each, however their owner puts their paths together.
[[nodiscard]] QString capturedText(const PasteboardSnapshot& snapshot,
                                   TextEnds ends = TextEnds::trimmed);

/// The same text, as its owner joined it; without white space at both ends.
[[nodiscard]] QString offeredText(const PasteboardSnapshot& snapshot);

/// A list of files: asked for only if there is no text and no picture itself, or if the text may be
/// their paths.
inline constexpr QLatin1StringView filesType("text/uri-list");

/// Whether the image in it can only be that of a file that the owner named.
[[nodiscard]] bool isFromFile(const PasteboardSnapshot& snapshot);

/// Nothing if something of the copy may be kept, or none of it has too many bytes.
[[nodiscard]] std::optional<TooLarge> tooLargeToKeep(const PasteboardSnapshot& snapshot);

} // namespace ravelo
