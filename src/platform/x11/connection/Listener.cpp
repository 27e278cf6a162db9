#include "platform/x11/connection/Listener.h"

#include "base/SignalsBlocked.h"

#include <QMetaObject>

#include <algorithm>
#include <cstdint>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ravelo::x11 {

namespace {

constexpr int forEver = -1;

/// Milliseconds for poll(), rounded up: one that returns too early would spin.
int pollTime(std::optional<TimePoint> deadline) {
    if (!deadline) {
        return forEver;
    }
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(*deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

} // namespace

Result<std::unique_ptr<Listener>> Listener::create() {
    auto connection = Connection::create();
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    const int wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wakeUp < 0) {
        return failure(QStringLiteral("no eventfd for the X listener"));
    }
    return std::unique_ptr<Listener>(new Listener(std::move(*connection), wakeUp));
}

Listener::Listener(std::unique_ptr<Connection> connection, int wakeUp)
    : connection_(std::move(connection)), wakeUp_(wakeUp) {}

Listener::~Listener() {
    stopping_ = true;
    post({});
    if (thread_.joinable()) {
        thread_.join();
    }
    ::close(wakeUp_);
}

void Listener::post(std::function<void()> task) {
    if (task) {
        const std::scoped_lock lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    const uint64_t one = 1;
    // It can only fail when 2^64 - 2 wake-ups wait already.
    [[maybe_unused]] const auto written = ::write(wakeUp_, &one, sizeof one);
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
    while (!stopping_) {
        runTasks();
        expire();
        dispatch(); // Last: what waited for a reply above may have left events in xcb's queue.
        if (connection_->isBroken()) {
            break;
        }
        sleep();
    }
}

void Listener::runTasks() {
    std::vector<std::function<void()>> tasks;
    {
        const std::scoped_lock lock(mutex_);
        tasks.swap(tasks_);
    }
    for (const auto& task : tasks) {
        task();
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
                      {wakeUp_, POLLIN, 0}};
    ::poll(waits, std::size(waits), pollTime(soonest));
    if (waits[1].revents != 0) {
        uint64_t count = 0;
        [[maybe_unused]] const auto got = ::read(wakeUp_, &count, sizeof count);
    }
}

} // namespace ravelo::x11
