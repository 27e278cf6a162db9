#include "panel/NotchController.h"

#include "clipboard/ClipboardManager.h"
#include "panel/NotchGeometry.h"
#include "panel/NotchShape.h"
#include "platform/DragMonitor.h"
#include "platform/Pointer.h"
#include "settings/AppSettings.h"
#include "store/Store.h"

#include <utility>

namespace ravelo {

namespace {

constexpr double hoverMargin =
    40; ///< How far around the open panel the pointer still counts as on it.
constexpr Seconds closeDelay{0.35};

} // namespace

NotchController::NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                                 Services services, HoverTick::Rest rest)
    : store_(store),
      clipboard_(clipboard),
      settings_(settings),
      services_(services),
      tick_(services.scheduler, services.pointer, rest, [this] { return evaluateHover(); }) {
    idleDragCount_ = services_.drags.changeCount();
    pressMonitor_ = services_.pointer.onPress([this] { pressedSomewhere(); });
    screensMonitor_ = services_.screens.onChange([this] { screensChanged(); });
    dragMonitor_ = services_.drags.onChange([this] { tick_.wake(); });
    positionCollapsed();
    services_.window.orderFront();
}

NotchController::~NotchController() = default;

HoverTick::Next NotchController::evaluateHover() {
    PointerState pointer = look();
    pointer.buttonDown = std::exchange(unseenPress_, false) || pointer.buttonDown;
    const auto on = screenFor(pointer.location, services_.screens.all(), services_.screens.main());
    if (!on) {
        return HoverTick::Next::still; // Screens that come back wake the tick.
    }
    if (!pointer.buttonDown) {
        idleDragCount_ = services_.drags.changeCount();
    }
    const bool inZone =
        pointer.location ? isNearTopCentre(*pointer.location, *on, hotZoneHeight, hotZoneHalfWidth)
                         : hovered_;
    if (isOpen_) {
        evaluateOpen(inZone, pointer);
    } else {
        evaluateCollapsed(inZone, *on, pointer);
    }
    const Seen seen{pointer.location, pointer.buttonDown, services_.drags.changeCount()};
    const bool moved = std::exchange(lastSeen_, seen) != seen;
    return moved || closeWork_ ? HoverTick::Next::busy : HoverTick::Next::still;
}

void NotchController::evaluateOpen(bool inZone, const PointerState& pointer) {
    const QRectF near = frame_.adjusted(-hoverMargin, -hoverMargin, hoverMargin, hoverMargin);
    if (inZone || isOver(near, pointer)) {
        closeWork_.reset();
    } else {
        scheduleClose();
    }
}

void NotchController::evaluateCollapsed(bool inZone, const Screen& screen,
                                        const PointerState& pointer) {
    if (isFileDragNear(screen, pointer)) {
        positionExpanded();
        return;
    }
    const bool over = inZone || isOver(frame_, pointer);
    awaitsLeave_ = awaitsLeave_ && over;
    if (!over || awaitsLeave_) {
        stripTicks_ = 0;
        return;
    }
    if (++stripTicks_ >= 1) {
        positionExpanded();
    }
}

bool NotchController::isFileDragNear(const Screen& screen, const PointerState& pointer) const {
    // The source is asked for its types only once everything else speaks for opening: some make
    // their files when they are asked.
    return pointer.buttonDown && pointer.location &&
           services_.drags.changeCount() != idleDragCount_ &&
           isNearTopCentre(*pointer.location, screen, dragZoneHeight, dragZoneHalfWidth) &&
           services_.drags.carriesFiles().value_or(false);
}

bool NotchController::isOver(const QRectF& area, const PointerState& pointer) const {
    return pointer.location ? area.contains(*pointer.location) : hovered_;
}

PointerState NotchController::look() {
    const PointerState pointer = services_.pointer.state();
    unseenPress_ = unseenPress_ || pointer.buttonDown;
    return pointer;
}

std::optional<Screen> NotchController::screen() {
    return screenFor(look().location, services_.screens.all(), services_.screens.main());
}

void NotchController::pressedSomewhere() {
    tick_.wake();
    if (isOpen_ && !isOver(frame_, look())) {
        collapse();
    }
}

void NotchController::screensChanged() {
    if (!isOpen_) {
        positionCollapsed();
    } else if (const auto on = screen()) {
        placeExpanded(*on);
    }
}

// Renewed by every tick with the pointer outside, so it runs only where ticks stop coming.
void NotchController::scheduleClose() {
    closeWork_ = services_.scheduler.after(closeDelay, [this] {
        closeWork_.reset();
        collapse();
    });
}

void NotchController::collapse() {
    if (!isOpen_) {
        return;
    }
    stripTicks_ = 0;
    closeWork_.reset();
    services_.window.returnFocus();
    positionCollapsed();
}

void NotchController::dismiss() {
    if (isOpen_) {
        awaitsLeave_ = true;
        collapse();
    }
}

void NotchController::toggle() {
    if (isOpen_) {
        dismiss();
    } else {
        positionExpanded();
    }
}

void NotchController::positionCollapsed() {
    const bool changed = std::exchange(isOpen_, false);
    if (changed) {
        Q_EMIT isOpenChanged();
    }
    if (const auto on = screen()) {
        setFrame(*on, handleSize, handleOutline(handleSize));
    }
}

void NotchController::positionExpanded() {
    const auto on = screen();
    if (isOpen_ || !on) {
        return;
    }
    isOpen_ = true;
    Q_EMIT isOpenChanged();
    placeExpanded(*on);
    services_.window.orderFront();
}

void NotchController::placeExpanded(const Screen& screen) {
    const Shelf shelf = store_.shelfStacks().isEmpty() ? Shelf::empty : Shelf::holdsFiles;
    const QSizeF size = expandedSize(settings_.panelWidth(), shelf);
    setFrame(screen, size, panelOutline(size));
}

void NotchController::setFrame(const Screen& screen, QSizeF size, const QPainterPath& outline) {
    frame_ = hangingFrame(screen, size);
    services_.window.place(screen, size);
    services_.window.setOutline(outline);
    tick_.wake();
}

void NotchController::setHovered(bool hovered) {
    hovered_ = hovered;
    tick_.wake();
}

void NotchController::copy(const QString& text) {
    clipboard_.copyText(text);
}

void NotchController::copyImage(const QString& path) {
    clipboard_.copyImage(path);
}

void NotchController::typeFocus() {
    services_.window.requestFocus();
}

} // namespace ravelo
