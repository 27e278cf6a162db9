#include "platform/system/SystemScheduler.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <map>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace ravelo {

namespace {

constexpr qint64 second = 1'000'000'000;
constexpr double maxWait = 1e9; // Seconds; 30 years, so that sums do not overflow.

qint64 read(clockid_t clock) {
    timespec time = {};
    clock_gettime(clock, &time);
    return time.tv_sec * second + time.tv_nsec;
}

qint64 nanoseconds(Seconds time) {
    return std::llround(std::clamp(time.count(), 0.0, maxWait) * static_cast<double>(second));
}

} // namespace

qint64 nextOnGrid(qint64 due, qint64 interval, qint64 now) {
    return due + interval * (1 + std::max<qint64>(now - due, 0) / interval);
}

/// The waiting actions by time, and the kernel timer, set to the first.
class SystemScheduler::Queue {
public:
    struct Key {
        qint64 due = 0;
        qint64 serial = 0; ///< Keeps the order of actions at the same time.

        friend auto operator<=>(const Key&, const Key&) = default;
    };

    struct Entry {
        Key key;
        qint64 interval = 0; ///< 0 if it runs once.
        std::function<void()> action;
    };

    Queue() : timer_(timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC)) {}

    ~Queue() { close(timer_); }

    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    [[nodiscard]] int timer() const { return timer_; }

    static Handle add(const std::shared_ptr<Queue>& queue, qint64 delay, qint64 interval,
                      std::function<void()> action) {
        const Key key = {read(CLOCK_BOOTTIME) + delay, queue->nextSerial_++};
        auto entry = std::make_shared<Entry>(Entry{key, interval, std::move(action)});
        queue->entries_.emplace(key, entry);
        queue->arm();
        return Handle([weak = std::weak_ptr(queue), entry = std::move(entry)] {
            if (const auto alive = weak.lock()) {
                alive->entries_.erase(entry->key);
                alive->arm();
            }
        });
    }

    void runDue() {
        quint64 expirations = 0;
        (void)!::read(timer_, &expirations, sizeof expirations);
        armed_ = 0;
        const qint64 now = read(CLOCK_BOOTTIME);
        while (!entries_.empty() && entries_.begin()->first.due <= now) {
            const std::shared_ptr<Entry> entry = entries_.begin()->second;
            entries_.erase(entries_.begin());
            if (entry->interval > 0) {
                entry->key.due = nextOnGrid(entry->key.due, entry->interval, now);
                entries_.emplace(entry->key, entry);
            }
            arm(); // Before the action, which may run an event loop.
            entry->action();
        }
        arm();
    }

private:
    void arm() {
        const qint64 earliest = entries_.empty() ? 0 : entries_.begin()->first.due;
        if (std::exchange(armed_, earliest) == earliest) {
            return;
        }
        itimerspec time = {};
        time.it_value = {earliest / second, earliest % second};
        timerfd_settime(timer_, TFD_TIMER_ABSTIME, &time, nullptr);
    }

    int timer_;
    qint64 armed_ = 0; ///< When the timer will fire; 0 if it is off.
    qint64 nextSerial_ = 0;
    std::map<Key, std::shared_ptr<Entry>> entries_;
};

SystemScheduler::SystemScheduler()
    : queue_(std::make_shared<Queue>()),
      notifier_(std::make_unique<QSocketNotifier>(queue_->timer(), QSocketNotifier::Read)) {
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [queue = queue_] { queue->runDue(); });
}

SystemScheduler::~SystemScheduler() = default;

Date SystemScheduler::now() const {
    return {static_cast<double>(read(CLOCK_REALTIME)) / second - referenceInstant};
}

Seconds SystemScheduler::uptime() const {
    return std::chrono::nanoseconds(read(CLOCK_BOOTTIME));
}

Handle SystemScheduler::after(Seconds delay, std::function<void()> action) {
    return Queue::add(queue_, nanoseconds(delay), 0, std::move(action));
}

Handle SystemScheduler::every(Seconds interval, std::function<void()> action) {
    const qint64 period = std::max<qint64>(nanoseconds(interval), 1);
    return Queue::add(queue_, period, period, std::move(action));
}

} // namespace ravelo
