#pragma once

#include "platform/Pasteboard.h"

#include <optional>

namespace ravelo {

/// Tells the contents of a pasteboard from others without keeping them.
struct ContentsKey {
    enum class Kind { text, image, tooLarge };

    Kind kind;
    qsizetype size;
    size_t hash;

    friend bool operator==(const ContentsKey&, const ContentsKey&) = default;
};

/// By the text, else by the images that were read; nothing where there is neither.
[[nodiscard]] std::optional<ContentsKey> contentsKey(const PasteboardSnapshot& snapshot);

/// Contents that are on the pasteboard, or were until their owner ended.
struct HeldContents {
    ContentsKey key;
    quint32 owner = 0;
    Seconds since{};                     ///< The first capture, by the scheduler's uptime.
    std::optional<Seconds> ownerEnded{}; ///< Likewise.
};

/// Whether the user still wants what was made of the contents before.
enum class Wanted { yes, no };

/// Whether `next`, seen at `now`, is no copy but the same contents passed on: by a clipboard
/// manager, or by anyone else within two seconds of the former owner's end or of the first capture.
/// One program that copies the same twice has copied twice, and so has the user who deleted the
/// clip in between; only what is passed on after an end does not bring a deleted clip back.
[[nodiscard]] bool isHandOver(const HeldContents& before, Wanted wanted, const ContentsKey& next,
                              const PasteboardOwner& owner, Seconds now);

} // namespace ravelo
