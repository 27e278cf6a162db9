#include "platform/x11/connection/Events.h"

#include <QAbstractEventDispatcher>

namespace ravelo::x11 {

Events::Events(Connection& connection)
    : connection_(connection),
      notifier_(xcb_get_file_descriptor(connection.get()), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &context_, [this] {
        drain(xcb_poll_for_event);
        // At the server's end the socket stays readable for ever.
        notifier_.setEnabled(!connection_.isBroken());
    });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &context_, [this] { drain(xcb_poll_for_queued_event); });
}

Handle Events::onEvent(std::function<void(const xcb_generic_event_t&)> callback) {
    return listeners_.add(std::move(callback));
}

/// Flushing also reads what has come meanwhile, which would not wake the loop again: it never comes
/// last.
void Events::drain(xcb_generic_event_t* (*next)(xcb_connection_t*)) {
    xcb_flush(connection_.get());
    while (const Owned<xcb_generic_event_t> event{next(connection_.get())}) {
        const bool isError = event->response_type == 0;
        if (!isError) {
            listeners_.notify(*event);
        }
        xcb_flush(connection_.get());
    }
}

} // namespace ravelo::x11
