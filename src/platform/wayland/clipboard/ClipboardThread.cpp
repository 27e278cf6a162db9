#include "platform/wayland/clipboard/ClipboardThread.h"

#include "base/SignalsBlocked.h"

#include <QMetaObject>

#include <poll.h>
#include <pthread.h>

namespace ravelo::wayland {

using namespace Qt::StringLiterals;

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
    auto tasks = TaskQueue::create();
    if (!tasks) {
        return tl::unexpected(tasks.error());
    }
    return std::unique_ptr<ClipboardThread>(new ClipboardThread(
        std::move(connection), std::move(globals), std::move(control), std::move(*tasks)));
}

ClipboardThread::ClipboardThread(Connection connection, std::unique_ptr<Globals> globals,
                                 std::unique_ptr<DataControl> control,
                                 std::unique_ptr<TaskQueue> tasks)
    : connection_(std::move(connection)),
      globals_(std::move(globals)),
      control_(std::move(control)),
      tasks_(std::move(tasks)) {}

ClipboardThread::~ClipboardThread() {
    post([this] { stopping_ = true; });
    if (thread_.joinable()) {
        thread_.join();
    }
}

void ClipboardThread::start() {
    const SignalsBlocked blocked; // SIGPIPE, too: who pastes may close the pipe.
    thread_ = std::thread([this] { run(); });
    pthread_setname_np(thread_.native_handle(), "clipboard");
}

void ClipboardThread::callOnMain(std::function<void()> callback) {
    QMetaObject::invokeMethod(&mainThread_, std::move(callback), Qt::QueuedConnection);
}

void ClipboardThread::catchUp() {
    wl_display_roundtrip(connection_.get());
}

void ClipboardThread::run() {
    do {
        tasks_->run();
        pipes_.serve();
    } while (!stopping_ && sleep());
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
                                 {tasks_->descriptor(), POLLIN, 0}};
    pipes_.appendTo(waits);
    ::poll(waits.data(), waits.size(), pollTime(pipes_.deadline()));
    if (waits[0].revents != 0) {
        wl_display_read_events(display);
    } else {
        wl_display_cancel_read(display);
    }
    return wl_display_dispatch_pending(display) >= 0;
}

} // namespace ravelo::wayland
