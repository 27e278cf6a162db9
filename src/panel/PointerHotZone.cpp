#include "panel/PointerHotZone.h"

#include "panel/NotchGeometry.h"
#include "platform/PanelWindow.h"
#include "platform/Pointer.h"

namespace ravelo {

namespace {

/// How far around the panel the pointer is still near it.
constexpr double hoverMargin = 40;

} // namespace

PointerHotZone::PointerHotZone(Scheduler& scheduler, Screens& screens, Pointer& pointer,
                               PanelWindow& window, HoverTick::Rest rest)
    : screens_(screens),
      pointer_(pointer),
      window_(window),
      tick_(scheduler, pointer, rest, [this] { return report(); }),
      pressMonitor_(pointer.onPress([this](const auto& place) { pressed(place); })),
      hover_(window.onUnderPointerChange([this] { tick_.wakeNow(); })) {}

HotZone::Sight PointerHotZone::look() {
    return sightOf(ask());
}

Handle PointerHotZone::onSight(std::function<Report(const Sight&)> callback) {
    callback_ = std::move(callback);
    tick_.wake();
    return Handle([this] { callback_ = nullptr; });
}

Handle PointerHotZone::onPress(std::function<void(Press)> callback) {
    return presses_.add(std::move(callback));
}

void PointerHotZone::setPanel(const QRectF& frame) {
    panel_ = frame;
    tick_.wake();
}

PointerState PointerHotZone::ask() {
    const PointerState pointer = pointer_.state();
    unseenPress_ = unseenPress_ || pointer.buttonDown;
    locationKnown_ = pointer.location.has_value();
    return pointer;
}

HotZone::Sight PointerHotZone::sightOf(const PointerState& pointer) const {
    Sight sight;
    sight.screen = screenFor(pointer.location, screens_.all(), screens_.main());
    sight.buttonDown = pointer.buttonDown;
    sight.leftDown = pointer.leftDown;
    sight.location = pointer.location;
    if (!pointer.location) {
        sight.inZone = sight.onPanel = sight.nearPanel = window_.isUnderPointer();
        return sight;
    }
    const QPointF place = *pointer.location;
    if (sight.screen) {
        sight.inZone = isNearTopCentre(place, *sight.screen, hotZoneHeight, hotZoneHalfWidth);
        sight.inDragZone = isNearTopCentre(place, *sight.screen, dragZoneHeight, dragZoneHalfWidth);
    }
    sight.onPanel = panel_.contains(place);
    sight.nearPanel =
        panel_.adjusted(-hoverMargin, -hoverMargin, hoverMargin, hoverMargin).contains(place);
    return sight;
}

HoverTick::Next PointerHotZone::report() {
    using Next = HoverTick::Next;
    PointerState pointer = ask();
    pointer.buttonDown = std::exchange(unseenPress_, false);
    const bool again = callback_ && callback_(sightOf(pointer)) == Report::again;
    const std::pair seen{pointer.location, pointer.buttonDown};
    const bool moved = std::exchange(reported_, seen) != seen;
    return moved || again ? Next::busy : Next::still;
}

void PointerHotZone::pressed(std::optional<QPointF> place) {
    tick_.wake();
    Press press = Press::elsewhere;
    if (place ? panel_.contains(*place) : window_.isUnderPointer()) {
        press = Press::onPanel;
    } else if (pointer_.isOverOwnWindow()) {
        press = Press::onOwnWindow;
    }
    presses_.notify(press);
}

} // namespace ravelo
