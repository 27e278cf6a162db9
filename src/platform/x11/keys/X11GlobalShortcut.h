#pragma once

#include "base/Listeners.h"
#include "platform/GlobalShortcut.h"
#include "platform/x11/connection/Events.h"
#include "platform/x11/keys/KeyMap.h"

#include <QTimer>

#include <vector>

namespace ravelo::x11 {

/// A passive grab on the root window (XGrabKey), whatever Num Lock, Caps Lock and Scroll Lock are.
/// The server wakes us only for these keys. On the main thread's connection.
class X11GlobalShortcut final : public GlobalShortcut {
public:
    /// Both must outlive it.
    X11GlobalShortcut(Connection& connection, Events& events);
    X11GlobalShortcut(const X11GlobalShortcut&) = delete;
    X11GlobalShortcut& operator=(const X11GlobalShortcut&) = delete;
    ~X11GlobalShortcut() override;

    [[nodiscard]] State state() const override { return state_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    void set(const std::optional<KeyCombination>& keys) override;
    [[nodiscard]] Handle suspend() override;

    [[nodiscard]] Handle onPress(std::function<void(const QByteArray& token)> callback) override {
        return presses_.add(std::move(callback));
    }

private:
    /// Where the keys are on the keyboard.
    struct Place {
        xcb_keycode_t code = 0;            ///< 0 if the keyboard lacks one of the keys.
        std::vector<uint16_t> modifiers{}; ///< With each combination of locks.

        friend bool operator==(const Place&, const Place&) = default;
    };

    [[nodiscard]] Place place() const;
    [[nodiscard]] State grab();
    void release();
    void followMapping();
    void handle(const xcb_generic_event_t& event);

    Connection& connection_;
    std::optional<KeyCombination> keys_;
    State state_ = State::none;
    bool suspended_ = false;
    bool grabbed_ = false;
    Place place_; ///< At the last attempt to grab.
    QTimer remapped_;
    xcb_timestamp_t released_ = XCB_CURRENT_TIME;
    Listeners<> changes_;
    Listeners<const QByteArray&> presses_;
    Handle subscription_;
};

} // namespace ravelo::x11
