#pragma once

#include "platform/Pasteboard.h"
#include "store/history/ClipForms.h"
#include "store/images/PasteboardImage.h"

#include <QString>

namespace ravelo {

/// The next type to ask a pasteboard for: marks of secrecy before any contents, text before images;
/// empty once enough is known. Used as a `PasteboardPlan`, on any thread; for `useless` see
/// `nextImageType`.
[[nodiscard]] QString nextCaptureType(const PasteboardSnapshot& snapshot,
                                      const QStringList& useless = {});

/// Whether the owner wants its contents kept out of histories, by one of these marks: KDE's
/// "x-kde-passwordManagerHint" with the value "secret", those of nspasteboard.org, and those of
/// Windows, which programs from there also set here ("CanIncludeInClipboardHistory" with the value
/// 0). A value that cannot be read counts.
[[nodiscard]] bool isConcealed(const PasteboardSnapshot& snapshot);

/// What happens to white space and line breaks at both ends of a text.
enum class TextEnds { trimmed, kept };

/// The text that was read; empty if it is only white space. Several files give one line each,
/// however their owner joins the paths.
[[nodiscard]] QString capturedText(const PasteboardSnapshot& snapshot,
                                   TextEnds ends = TextEnds::trimmed);

/// The same text as its owner joined it, trimmed.
[[nodiscard]] QString offeredText(const PasteboardSnapshot& snapshot);

/// The next type to ask for when a clip is made of the plain text: its other forms that are kept.
/// Empty as well if their owner has marked it as secret meanwhile, or if they are too many.
[[nodiscard]] QString nextFormType(const PasteboardSnapshot& snapshot);

/// The answers to that, in the owner's order; none if they are too large together. Files to be
/// moved become files to be copied.
[[nodiscard]] QList<PasteboardEntry> capturedForms(const PasteboardSnapshot& snapshot);

/// A list of files. Requested only if there is neither text nor an image, or if the text may be
/// their paths.
inline constexpr QLatin1StringView filesType = uriListType;

/// The paths of copied files, a line each; empty if there is text, or not all are on this machine.
[[nodiscard]] QString copiedFilesText(const PasteboardSnapshot& snapshot);

/// Whether its image can only come from a file that the owner named.
[[nodiscard]] bool isFromFile(const PasteboardSnapshot& snapshot);

/// Nothing if any part of the copy may be kept, or no part is too large.
[[nodiscard]] std::optional<TooLarge> tooLargeToKeep(const PasteboardSnapshot& snapshot);

} // namespace ravelo
