#pragma once

#include "base/Descriptor.h"
#include "platform/gnome/Protocol.h"

#include <deque>

namespace ravelo::gnome {

/// A message with the descriptor that came with it.
struct Delivery {
    Report report;
    Descriptor descriptor;
};

/// Turns what arrives on the socket into messages. Pure.
class Inbox {
public:
    /// Bytes, and the descriptors that came with them, as received.
    void put(QByteArrayView bytes, std::vector<Descriptor> descriptors);

    /// The next complete message, without those that are too long; nothing if there is none yet, or
    /// `isBroken`.
    [[nodiscard]] std::optional<Delivery> take();

    /// Something arrived that is no message. Nothing after it counts.
    [[nodiscard]] bool isBroken() const { return broken_; }

private:
    [[nodiscard]] std::optional<QByteArray> takeLine();

    QByteArray bytes_;
    std::deque<Descriptor> descriptors_;
    bool isTooLong_ = false; ///< The line whose end is still to come.
    bool broken_ = false;
};

} // namespace ravelo::gnome
