#pragma once

#include "base/Descriptor.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo::wayland {

class Globals;

/// The clipboard of a Wayland session, independent of any window: by ext-data-control-v1, or else
/// by wlr-data-control-unstable-v1. The primary selection is ignored. For the thread that
/// dispatches the connection.
class DataControl {
public:
    using Types = QList<QByteArray>;

    struct Events {
        /// The types on the clipboard now, ours included; nothing if it is empty.
        std::function<void(const std::optional<Types>& types)> changed;

        /// Somebody pastes what we offer.
        std::function<void(qint64 offer, const QByteArray& type, Descriptor into)> asked;

        /// Ours is no longer on the clipboard, or never was.
        std::function<void(qint64 offer)> replaced;
    };

    /// Whether the compositor has one of the protocols, and a seat.
    [[nodiscard]] static bool isOffered(const Globals& globals);

    /// Null if it is not offered.
    [[nodiscard]] static std::unique_ptr<DataControl> create(const Globals& globals);

    virtual ~DataControl() = default;

    /// Once, before the first event.
    virtual void listen(Events events) = 0;

    /// Has the owner of what is on the clipboard write it into `into`.
    virtual void receive(const QByteArray& type, const Descriptor& into) = 0;

    /// Puts contents on the clipboard that can be asked for by these types. `key` names them.
    virtual void offer(qint64 key, const Types& types) = 0;
};

} // namespace ravelo::wayland
