#include "panel/EdgeGuard.h"

#include "panel/NotchGeometry.h"
#include "platform/DragMonitor.h"
#include "platform/EdgeBarrier.h"
#include "platform/Screens.h"

#include <QLineF>

#include <cmath>

namespace ravelo {

namespace {

constexpr Seconds retryInterval{3};
constexpr double guardedHeight = 10;
constexpr double guardedHalfWidth = 450;

QLineF guardedLine(const Screen& main) {
    const double y = main.frame.top() + guardedHeight;
    const double middle = main.frame.center().x();
    return {middle - guardedHalfWidth, y, middle + guardedHalfWidth, y};
}

} // namespace

EdgeGuard::EdgeGuard(Scheduler& scheduler, Screens& screens, DragMonitor& drags,
                     EdgeBarrier& barrier)
    : scheduler_(scheduler), screens_(screens), drags_(drags), barrier_(barrier) {}

void EdgeGuard::start() {
    retry_.reset();
    if (!barrier_.isTrusted()) {
        state_ = State::waitingForTrust;
        retry_ = scheduler_.after(retryInterval, [this] { start(); });
        return;
    }
    if (state_ != State::failed) {
        state_ = State::guarding;
    }
}

void EdgeGuard::follow(std::optional<QPointF> drag) {
    if (!drag) {
        held_.reset();
        return;
    }
    const auto main = screens_.main();
    if (state_ != State::guarding || held_ || !main) {
        return;
    }
    const QLineF line = guardedLine(*main);
    // The source is asked for its types only once the pointer may need to be held: some make their
    // files when they are asked.
    const bool within = drag->x() >= line.x1() && drag->x() <= line.x2();
    if (within && !drags_.files().value_or(QList<QUrl>()).isEmpty()) {
        hold(line);
    }
}

void EdgeGuard::hold(QLineF line) {
    if (auto held = barrier_.hold(line)) {
        held_ = std::move(*held);
    } else {
        state_ = State::failed;
    }
}

} // namespace ravelo
