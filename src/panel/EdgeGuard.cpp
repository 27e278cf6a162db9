#include "panel/EdgeGuard.h"

#include "platform/EdgeBarrier.h"
#include "platform/Screens.h"

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds retryInterval{3};
constexpr double guardedHeight = 10;
constexpr double guardedHalfWidth = 450;

QRectF guardedStrip(const Screen& main) {
    const QRectF strip(main.frame.center().x() - guardedHalfWidth, main.frame.top(),
                       2 * guardedHalfWidth, guardedHeight);
    return strip & main.frame; // A narrow monitor may have a neighbour.
}

} // namespace

EdgeGuard::EdgeGuard(Scheduler& scheduler, Screens& screens, EdgeBarrier& barrier,
                     std::function<bool()> carriesFiles)
    : scheduler_(scheduler),
      screens_(screens),
      barrier_(barrier),
      carriesFiles_(std::move(carriesFiles)) {}

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

void EdgeGuard::follow(std::optional<QPointF> drag, Source source) {
    if (!drag) {
        held_.reset();
        return;
    }
    const auto main = screens_.main();
    if (state_ != State::guarding || held_ || !main) {
        return;
    }
    const QRectF strip = guardedStrip(*main);
    const bool within = drag->x() >= strip.left() && drag->x() <= strip.right();
    if (within && (source == Source::panel || carriesFiles_())) {
        hold(strip);
    }
}

void EdgeGuard::hold(QRectF strip) {
    if (auto held = barrier_.hold(strip)) {
        held_ = std::move(*held);
    } else {
        state_ = State::failed;
    }
}

} // namespace ravelo
