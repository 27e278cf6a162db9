#include "fakes/ManualScheduler.h"

#include <algorithm>

namespace ravelo {

namespace {

constexpr double startInstant = 800000000; // 2026-05-09 06:13:20 UTC

qint64 microseconds(Seconds time) {
    return qRound64(time.count() * 1e6);
}

} // namespace

struct ManualScheduler::Entry {
    qint64 interval = 0; ///< 0 for work that is done once.
    std::function<void()> action;
    bool cancelled = false;
};

ManualScheduler::ManualScheduler() : queue_(std::make_shared<Queue>()) {}

ManualScheduler::~ManualScheduler() = default;

Date ManualScheduler::now() const {
    return {startInstant + wallOffset_ + uptime().count()};
}

Seconds ManualScheduler::uptime() const {
    return Seconds(static_cast<double>(uptime_) / 1e6);
}

Handle ManualScheduler::after(Seconds delay, std::function<void()> action) {
    return add(delay, Seconds(0), std::move(action));
}

Handle ManualScheduler::every(Seconds interval, std::function<void()> action) {
    return add(interval, interval, std::move(action));
}

Handle ManualScheduler::add(Seconds delay, Seconds interval, std::function<void()> action) {
    auto entry = std::make_shared<Entry>(Entry{microseconds(interval), std::move(action)});
    queue_->emplace(uptime_ + std::max<qint64>(microseconds(delay), 0), entry);
    return Handle([queue = std::weak_ptr(queue_), entry] {
        entry->cancelled = true;
        if (const auto alive = queue.lock()) {
            std::erase_if(*alive, [&](const auto& item) { return item.second == entry; });
        }
    });
}

void ManualScheduler::advance(Seconds time) {
    const qint64 end = uptime_ + microseconds(time);
    while (!queue_->empty() && queue_->begin()->first <= end) {
        const auto [due, entry] = *queue_->begin();
        queue_->erase(queue_->begin());
        uptime_ = std::max(uptime_, due);
        if (entry->interval > 0) {
            queue_->emplace(due + entry->interval, entry);
        }
        const auto action = entry->action; // It may drop its own handle.
        action();
    }
    uptime_ = end;
}

void ManualScheduler::setNow(Date now) {
    wallOffset_ += now.sinceReference - this->now().sinceReference;
}

int ManualScheduler::pending() const {
    return static_cast<int>(queue_->size());
}

} // namespace ravelo
