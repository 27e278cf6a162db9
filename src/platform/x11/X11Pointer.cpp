#include "platform/x11/X11Pointer.h"

#include <utility>

namespace ravelo::x11 {

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
        listener.tell([waiting] {
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
    // After the question: a press that the answer shows already is not told again by the flag.
    const bool pressed = input_->takePressed();
    if (!seen_ || known_ == Known::overX11Windows) {
        return {std::nullopt, pressed};
    }
    return {toLogical_(seen_->location), seen_->buttonDown || pressed, seen_->leftDown};
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
