#include "platform/x11/pointer/X11Pointer.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace ravelo::x11 {

namespace {

/// Who presses more often than the main thread can hear is a program, which must not fill our
/// queue.
constexpr int maxPending = 64;

/// Our visible managed windows.
std::vector<xcb_window_t> ownWindows() {
    std::vector<xcb_window_t> ids;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->type() == Qt::Window &&
            !window->flags().testFlag(Qt::X11BypassWindowManagerHint)) {
            ids.push_back(static_cast<xcb_window_t>(window->winId()));
        }
    }
    return ids;
}

} // namespace

X11Pointer::X11Pointer(Connection& connection, Listener& listener, Known known, ToLogical toLogical)
    : connection_(connection),
      listener_(listener),
      known_(known),
      toLogical_(std::move(toLogical)) {
    auto pressed = [&listener, presses = presses_](const std::optional<PointerSight>& sight) {
        if (presses->pending < maxPending) {
            ++presses->pending;
            listener.callOnMain([presses, sight] {
                --presses->pending;
                presses->listeners.notify(sight);
            });
        }
    };
    auto active = [&listener, waiting = waiting_] {
        listener.callOnMain([waiting] {
            if (const auto wake = std::exchange(waiting->wake, nullptr)) {
                wake();
            }
        });
    };
    input_ =
        std::make_shared<RawInput>(listener.connection(), RawInput::Callbacks{pressed, active});
    listener.attach(input_);
}

PointerState X11Pointer::state() {
    seen_ = look(connection_);
    // After the query: a press that its reply includes must not be reported again by the flag.
    const bool pressed = input_->takePressed();
    const auto place = placeOf(seen_);
    return place ? PointerState{place, seen_->buttonDown || pressed, seen_->leftDown}
                 : PointerState{std::nullopt, pressed};
}

std::optional<QPointF> X11Pointer::placeOf(const std::optional<PointerSight>& sight) const {
    const bool known = sight && known_ == Known::everywhere;
    return known ? std::optional(toLogical_(sight->location)) : std::nullopt;
}

Handle X11Pointer::onPress(std::function<void(std::optional<QPointF>)> callback) {
    return presses_->listeners.add(
        [this, callback = std::move(callback)](const auto& sight) { callback(placeOf(sight)); });
}

bool X11Pointer::isOverOwnWindow() {
    const std::vector<xcb_window_t> own = ownWindows();
    constexpr int deepest = 8; // The root, perhaps a desktop, the manager's frame, ours.
    xcb_window_t window = own.empty() ? xcb_window_t(XCB_WINDOW_NONE) : connection_.root();
    for (int depth = 0; depth < deepest && window != XCB_WINDOW_NONE; ++depth) {
        const auto cookie = xcb_query_pointer(connection_.get(), window);
        const Owned<xcb_query_pointer_reply_t> reply(
            xcb_query_pointer_reply(connection_.get(), cookie, nullptr));
        window = reply ? reply->child : xcb_window_t(XCB_WINDOW_NONE);
        if (std::ranges::find(own, window) != own.end()) {
            return true;
        }
    }
    return false;
}

Handle X11Pointer::onNextActivity(std::function<void()> wake) {
    const quint64 number = ++waiting_->number;
    waiting_->wake = std::move(wake);
    listener_.post([input = input_, seen = seen_] { input->awaitActivity(seen); });
    return Handle([&listener = listener_, waiting = waiting_, input = input_, number] {
        if (waiting->number == number && waiting->wake) {
            waiting->wake = nullptr;
            listener.post([input] { input->stopAwaiting(); });
        }
    });
}

} // namespace ravelo::x11
