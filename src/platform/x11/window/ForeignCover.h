#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"
#include "platform/x11/connection/MainThreadNotifier.h"

#include <QRect>

#include <memory>

namespace ravelo::x11 {

class CoverWatch;

/// Counts as a lock: another program's unmanaged window hides the monitor that the panel is on.
/// Main thread.
class ForeignCover final : public SessionLock {
public:
    /// Before `listener` starts; it must outlive this.
    explicit ForeignCover(Listener& listener);

    /// The panel's window, and its monitor in the root window's pixels.
    void follow(xcb_window_t panel, QRect monitor);

    [[nodiscard]] bool isLocked() const override { return state_->covered; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return state_->listeners.add(std::move(callback));
    }

    /// Called when another program has mapped any window that is not managed.
    [[nodiscard]] Handle onNewcomer(std::function<void()> callback) {
        return newcomers_->add(std::move(callback));
    }

private:
    struct State {
        bool covered = false;
        Listeners<> listeners;
    };

    Listener& listener_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
    std::shared_ptr<MainThreadNotifier> newcomers_;
    std::shared_ptr<CoverWatch> watch_;
};

} // namespace ravelo::x11
