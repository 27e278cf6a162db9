#pragma once

#include "platform/Pasteboard.h"

#include <optional>

namespace ravelo {

/// Identifies the contents of a pasteboard without keeping them.
struct ContentsKey {
    enum class Kind { text, image, tooLarge };

    Kind kind;
    qsizetype size;
    size_t hash;

    friend bool operator==(const ContentsKey&, const ContentsKey&) = default;
};

/// By the text, or else by the images that were read; nothing if there is neither.
[[nodiscard]] std::optional<ContentsKey> contentsKey(const PasteboardSnapshot& snapshot);

/// Contents that are on the pasteboard, or were until their owner ended.
struct HeldContents {
    ContentsKey key;
    quint32 owner = 0;
    Seconds since{};                     ///< Uptime of the first capture.
    std::optional<Seconds> ownerEnded{}; ///< Uptime.
};

/// Whether the user still wants the clip made of the earlier contents.
enum class Wanted { yes, no };

/// Whether `next`, seen at `now`, is not a new copy but the same contents passed on: by a clipboard
/// manager, or by any other program within two seconds of the former owner's end or of the first
/// capture. The same program copying again is a new copy, and so is a copy after the user deleted
/// the clip; but what is passed on after an owner's end never brings a deleted clip back.
[[nodiscard]] bool isHandOver(const HeldContents& before, Wanted wanted, const ContentsKey& next,
                              const PasteboardOwner& owner, Seconds now);

} // namespace ravelo
