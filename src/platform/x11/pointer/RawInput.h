#pragma once

#include "platform/x11/connection/Listener.h"
#include "platform/x11/pointer/IdleAlarm.h"

#include <QPoint>

#include <atomic>
#include <functional>
#include <optional>

namespace ravelo::x11 {

/// Where the pointer is and which buttons are down.
struct PointerSight {
    QPoint location; ///< In the server's pixels.
    bool buttonDown = false;
    bool leftDown = false;

    friend bool operator==(const PointerSight&, const PointerSight&) = default;
};

/// Queries the server; nothing if it is gone.
[[nodiscard]] std::optional<PointerSight> look(Connection& connection);

/// Raw events of all pointers (X Input Extension 2), which are sent even during grabs. Buttons are
/// always listened to; motion, which would wake us hundreds of times a second, only up to the next
/// one, together with an alarm for a pointer that is moved by a program: that sends no raw event.
/// Made before the listener starts, then used on its thread, except for `takePressed`.
class RawInput final : public EventHandler {
public:
    struct Callbacks {
        /// The left or the right button, there; nothing if the server is gone.
        std::function<void(std::optional<PointerSight>)> pressed;
        std::function<void()> active; ///< Once for each `awaitActivity`.
    };

    RawInput(Connection& connection, Callbacks callbacks);

    /// Whether any button was pressed since the last call. Any thread.
    [[nodiscard]] bool takePressed() { return pressed_.exchange(false); }

    /// Waits for a motion or a button; a press not taken yet and, if given, a sight that is not
    /// `seen` any more count at once.
    void awaitActivity(std::optional<PointerSight> seen);
    void stopAwaiting();

    void handle(const xcb_generic_event_t& event) override;

private:
    enum class Motion { ignored, heard };

    void listenTo(Motion motion);
    void active();

    Connection& connection_;
    IdleAlarm alarm_;
    Callbacks callbacks_;
    std::atomic<bool> pressed_ = false;
    bool awaiting_ = false;
    std::optional<PointerSight> seen_; ///< When the waiting began.
};

} // namespace ravelo::x11
