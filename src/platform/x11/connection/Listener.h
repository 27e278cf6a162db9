#pragma once

#include "base/TaskQueue.h"
#include "platform/x11/connection/Connection.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace ravelo::x11 {

using TimePoint = std::chrono::steady_clock::time_point;

/// A part of the listener: gets every event of its connection. Works on the listener's thread; is
/// made before that starts and destroyed after it has ended.
class EventHandler {
public:
    virtual ~EventHandler() = default;

    virtual void handle(const xcb_generic_event_t& event) = 0;

    /// When to call `expire`; nothing while there is nothing to wait for.
    [[nodiscard]] virtual std::optional<TimePoint> deadline() const { return std::nullopt; }

    virtual void expire(TimePoint /*now*/) {}
};

/// The one thread that waits for other X clients, with a connection of its own: whatever they do
/// or fail to do, the main thread is not affected. Sleeps in poll() while nothing happens.
/// Made, used and destroyed on the main thread, but for `connection`, `callOnMain` and `catchUp`.
/// If the server goes away it just stops reporting.
class Listener {
public:
    [[nodiscard]] static Result<std::unique_ptr<Listener>> create();

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// Waits for the thread, which only ever waits for the X server.
    ~Listener();

    /// The main thread's until `start`, then the handlers'. Requests (not atoms) may be sent from
    /// any thread all the time; after one that waited for its reply on another thread, `post`
    /// something: the reply may have brought events along.
    [[nodiscard]] Connection& connection() { return *connection_; }

    /// Adds `handler`; before `start` only, so that it misses nothing.
    void attach(std::shared_ptr<EventHandler> handler);

    /// Begins to listen.
    void start();

    /// Runs `task` on the listener's thread, in the order given.
    void post(std::function<void()> task) { tasks_->post(std::move(task)); }

    /// Runs `callback` on the main thread. Any thread; nothing is run once the listener is
    /// gone.
    void callOnMain(std::function<void()> callback);

    /// Handles everything that the server has sent so far; for tasks, on the listener's thread.
    void catchUp();

private:
    Listener(std::unique_ptr<Connection> connection, std::unique_ptr<TaskQueue> tasks);

    void run();
    void expire();
    void dispatch();
    void sleep();

    std::unique_ptr<Connection> connection_;
    std::unique_ptr<TaskQueue> tasks_;
    QObject mainThread_;
    bool stopping_ = false;                               ///< The thread's own.
    std::vector<std::shared_ptr<EventHandler>> handlers_; ///< The thread's own after `start`.
    std::thread thread_;
};

} // namespace ravelo::x11
