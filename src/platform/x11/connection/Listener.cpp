#include "platform/x11/connection/Listener.h"

#include "base/SignalsBlocked.h"

#include <QMetaObject>

#include <poll.h>
#include <pthread.h>

namespace ravelo::x11 {

Result<std::unique_ptr<Listener>> Listener::create() {
    auto connection = Connection::create();
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    auto tasks = TaskQueue::create();
    if (!tasks) {
        return tl::unexpected(tasks.error());
    }
    return std::unique_ptr<Listener>(new Listener(std::move(*connection), std::move(*tasks)));
}

Listener::Listener(std::unique_ptr<Connection> connection, std::unique_ptr<TaskQueue> tasks)
    : connection_(std::move(connection)), tasks_(std::move(tasks)) {}

Listener::~Listener() {
    post([this] { stopping_ = true; });
    if (thread_.joinable()) {
        thread_.join();
    }
}

void Listener::callOnMain(std::function<void()> callback) {
    QMetaObject::invokeMethod(&mainThread_, std::move(callback), Qt::QueuedConnection);
}

void Listener::attach(std::shared_ptr<EventHandler> handler) {
    handlers_.push_back(std::move(handler));
}

void Listener::start() {
    const SignalsBlocked blocked;
    thread_ = std::thread([this] { run(); });
    pthread_setname_np(thread_.native_handle(), "x11-listener");
}

void Listener::catchUp() {
    auto* xcb = connection_->get();
    const Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    dispatch();
}

void Listener::run() {
    for (;;) {
        tasks_->run();
        expire();
        dispatch(); // Last: what waited for a reply above may have left events in xcb's queue.
        if (stopping_ || connection_->isBroken()) {
            break;
        }
        sleep();
    }
}

void Listener::expire() {
    const auto now = std::chrono::steady_clock::now();
    for (const auto& handler : handlers_) {
        if (const auto deadline = handler->deadline(); deadline && *deadline <= now) {
            handler->expire(now);
        }
    }
}

void Listener::dispatch() {
    const auto next = [xcb = connection_->get()] {
        Owned<xcb_generic_event_t> event(xcb_poll_for_event(xcb));
        if (!event) {
            // Flushing also reads what has come meanwhile: poll() would not report that again.
            xcb_flush(xcb);
            event.reset(xcb_poll_for_queued_event(xcb));
        }
        return event;
    };
    while (const auto event = next()) {
        for (const auto& handler : handlers_) {
            handler->handle(*event);
        }
    }
}

void Listener::sleep() {
    std::optional<TimePoint> soonest;
    for (const auto& handler : handlers_) {
        const auto deadline = handler->deadline();
        if (deadline && (!soonest || *deadline < *soonest)) {
            soonest = deadline;
        }
    }
    pollfd waits[] = {{xcb_get_file_descriptor(connection_->get()), POLLIN, 0},
                      {tasks_->descriptor(), POLLIN, 0}};
    ::poll(waits, std::size(waits), pollTime(soonest));
}

} // namespace ravelo::x11
