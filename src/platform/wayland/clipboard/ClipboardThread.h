#pragma once

#include "base/Result.h"
#include "base/TaskQueue.h"
#include "platform/wayland/clipboard/DataControl.h"
#include "platform/wayland/clipboard/Pipes.h"
#include "platform/wayland/connection/Globals.h"

#include <QObject>

#include <functional>
#include <memory>
#include <thread>

namespace ravelo::wayland {

/// The one thread that waits for other clients, with its own connection to the compositor: whatever
/// they do or fail to do, the main thread is not affected. Sleeps in poll() while nothing happens.
/// Created, used and destroyed on the main thread, except for what is marked. If the compositor
/// goes away it just stops reporting.
class ClipboardThread {
public:
    /// An error if the compositor has no data control.
    [[nodiscard]] static Result<std::unique_ptr<ClipboardThread>> create();

    ClipboardThread(const ClipboardThread&) = delete;

    /// Waits for the thread, which only ever waits for the compositor.
    ~ClipboardThread();

    void start();

    /// Runs `task` on the thread, in the order given. Any thread.
    void post(std::function<void()> task) { tasks_->post(std::move(task)); }

    /// Runs `callback` on the main thread, unless this is gone by then. The thread only.
    void callOnMain(std::function<void()> callback);

    /// Before `start`, or on the thread.
    [[nodiscard]] DataControl& control() { return *control_; }

    /// The thread only.
    [[nodiscard]] Pipes& pipes() { return pipes_; }

    /// Handles everything that the compositor has sent so far. Before `start`, or on the thread.
    void catchUp();

private:
    ClipboardThread(Connection connection, std::unique_ptr<Globals> globals,
                    std::unique_ptr<DataControl> control, std::unique_ptr<TaskQueue> tasks);

    void run();
    [[nodiscard]] bool sleep();

    Connection connection_;
    std::unique_ptr<Globals> globals_;
    Pipes pipes_; ///< Who listens to `control_` reads and writes by it.
    std::unique_ptr<DataControl> control_;
    std::unique_ptr<TaskQueue> tasks_;
    QObject mainThread_;
    bool stopping_ = false; ///< The thread's own.
    std::thread thread_;
};

} // namespace ravelo::wayland
