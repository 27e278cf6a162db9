#include "platform/x11/window/ForeignCover.h"

#include "platform/x11/window/CoverWatch.h"

namespace ravelo::x11 {

ForeignCover::ForeignCover(Listener& listener)
    : listener_(listener), newcomers_(std::make_shared<MainThreadNotifier>(listener)) {
    auto changed = [&listener, state = state_](bool covered) {
        listener.callOnMain([state, covered] {
            state->covered = covered;
            state->listeners.notify();
        });
    };
    auto newcomer = [newcomers = newcomers_] {
        newcomers->notify();
    };
    watch_ = std::make_shared<CoverWatch>(listener.connection(), changed, newcomer);
    listener.attach(watch_);
}

void ForeignCover::follow(xcb_window_t panel, QRect monitor) {
    listener_.post([watch = watch_, panel, monitor] { watch->follow(panel, monitor); });
}

} // namespace ravelo::x11
