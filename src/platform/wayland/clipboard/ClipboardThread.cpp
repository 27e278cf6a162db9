#include "platform/wayland/clipboard/ClipboardThread.h"

#include "base/SignalsBlocked.h"

#include <QMetaObject>

#include <algorithm>
#include <cstdint>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ravelo::wayland {

using namespace Qt::StringLiterals;

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

Result<std::unique_ptr<ClipboardThread>> ClipboardThread::create() {
    Connection connection(wl_display_connect(nullptr));
    if (!connection) {
        return failure(u"cannot connect to the Wayland compositor"_s);
    }
    auto globals = std::make_unique<Globals>(connection.get());
    auto control = DataControl::create(*globals);
    if (!control) {
        return failure(u"the Wayland compositor has no data-control protocol"_s);
    }
    Descriptor wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!wakeUp) {
        return failure(u"no eventfd for the clipboard's thread"_s);
    }
    return std::unique_ptr<ClipboardThread>(new ClipboardThread(
        std::move(connection), std::move(globals), std::move(control), std::move(wakeUp)));
}

ClipboardThread::ClipboardThread(Connection connection, std::unique_ptr<Globals> globals,
                                 std::unique_ptr<DataControl> control, Descriptor wakeUp)
    : connection_(std::move(connection)),
      globals_(std::move(globals)),
      control_(std::move(control)),
      wakeUp_(std::move(wakeUp)) {}

ClipboardThread::~ClipboardThread() {
    stopping_ = true;
    post({});
    if (thread_.joinable()) {
        thread_.join();
    }
}

void ClipboardThread::start() {
    const SignalsBlocked blocked; // SIGPIPE, too: who pastes may close the pipe.
    thread_ = std::thread([this] { run(); });
    pthread_setname_np(thread_.native_handle(), "clipboard");
}

void ClipboardThread::post(std::function<void()> task) {
    if (task) {
        const std::scoped_lock lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    const uint64_t one = 1;
    // Fails only if 2^64 - 2 wake-ups are pending.
    [[maybe_unused]] const auto written = ::write(wakeUp_.number(), &one, sizeof one);
}

void ClipboardThread::callOnMain(std::function<void()> callback) {
    QMetaObject::invokeMethod(&mainThread_, std::move(callback), Qt::QueuedConnection);
}

void ClipboardThread::catchUp() {
    wl_display_roundtrip(connection_.get());
}

void ClipboardThread::run() {
    while (!stopping_) {
        runTasks();
        pipes_.serve();
        if (!sleep()) {
            break;
        }
    }
}

void ClipboardThread::runTasks() {
    std::vector<std::function<void()>> tasks;
    {
        const std::scoped_lock lock(mutex_);
        tasks.swap(tasks_);
    }
    for (const auto& task : tasks) {
        task();
    }
}

/// Until something can be done, and handles what the compositor has sent. False once it is gone.
bool ClipboardThread::sleep() {
    wl_display* const display = connection_.get();
    while (wl_display_prepare_read(display) != 0) {
        if (wl_display_dispatch_pending(display) < 0) {
            return false;
        }
    }
    wl_display_flush(display);
    std::vector<pollfd> waits = {{wl_display_get_fd(display), POLLIN, 0},
                                 {wakeUp_.number(), POLLIN, 0}};
    pipes_.appendTo(waits);
    ::poll(waits.data(), waits.size(), pollTime(pipes_.deadline()));
    if (waits[0].revents != 0) {
        wl_display_read_events(display);
    } else {
        wl_display_cancel_read(display);
    }
    if (waits[1].revents != 0) {
        uint64_t count = 0;
        [[maybe_unused]] const auto got = ::read(wakeUp_.number(), &count, sizeof count);
    }
    return wl_display_dispatch_pending(display) >= 0;
}

} // namespace ravelo::wayland
