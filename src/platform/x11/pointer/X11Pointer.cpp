#include "platform/x11/pointer/X11Pointer.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace ravelo::x11 {

namespace {

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
      toLogical_(std::move(toLogical)),
      presses_(std::make_shared<Notifier>(listener)) {
    auto pressed = [presses = presses_] {
        presses->notify();
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
    if (!seen_ || known_ == Known::overX11Windows) {
        return {std::nullopt, pressed};
    }
    return {toLogical_(seen_->location), seen_->buttonDown || pressed, seen_->leftDown};
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
