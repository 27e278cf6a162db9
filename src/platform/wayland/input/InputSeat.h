#pragma once

#include "base/Listeners.h"
#include "platform/wayland/connection/Globals.h"

namespace ravelo::wayland {

/// The pointer over surfaces of ours that Qt does not know, on Qt's connection but with objects of
/// our own. The first seat only. Main thread.
class InputSeat {
public:
    enum class Change { entered, left, pressed };

    explicit InputSeat(const Globals& globals);
    InputSeat(const InputSeat&) = delete;

    /// Called for each change on a surface of ours, Qt's included.
    [[nodiscard]] Handle onChange(std::function<void(Change, wl_surface*)> callback) {
        return listeners_.add(std::move(callback));
    }

    /// Whether the pointer is over it, by the compositor and without a drag; false for null.
    [[nodiscard]] bool isOver(const wl_surface* surface) const {
        return surface != nullptr && surface == under_;
    }

    /// Null if there is none.
    [[nodiscard]] wl_seat* seat() const { return seat_.get(); }

private:
    void setCapabilities(uint32_t capabilities);
    void move(wl_surface* to);
    void press() const;

    static const wl_seat_listener seatEvents;
    static const wl_pointer_listener pointerEvents;

    Owned<wl_seat> seat_;
    Owned<wl_pointer> pointer_;
    wl_surface* under_ = nullptr; ///< The pointer; only to compare with.
    Listeners<Change, wl_surface*> listeners_;
};

} // namespace ravelo::wayland
