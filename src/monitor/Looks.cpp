#include "monitor/Looks.h"

#include "platform/FolderChanges.h"

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

/// For what the kernel does not report, such as another file system mounted over a folder.
constexpr Seconds maxPause(300);

} // namespace

Looks::Looks(Scheduler& scheduler, FolderChanges& changes, std::function<void()> look)
    : scheduler_(scheduler),
      changes_(changes),
      look_(std::move(look)),
      last_(scheduler.uptime()),
      poll_(scheduler.every(interval, [this] { this->look(); })) {}

void Looks::looked(Watched watched) {
    if (watched == Watched::no) {
        Handle poll = std::move(poll_);
        pause();
        poll_ = poll ? std::move(poll) : scheduler_.every(interval, [this] { look(); });
        return;
    }
    poll_.reset();
    next_ = scheduler_.after(maxPause, [this] { look(); });
    change_ = changes_.onChange([this] {
        const Seconds due = last_ + interval;
        next_ =
            scheduler_.after(std::max(due - scheduler_.uptime(), Seconds(0)), [this] { look(); });
    });
}

void Looks::pause() {
    poll_.reset();
    change_.reset();
    next_.reset();
}

void Looks::look() {
    last_ = scheduler_.uptime();
    look_();
}

} // namespace ravelo
