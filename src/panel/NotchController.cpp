#include "panel/NotchController.h"

#include "clipboard/ClipboardManager.h"
#include "panel/HotKeyCenter.h"
#include "panel/NotchGeometry.h"
#include "panel/NotchShape.h"
#include "platform/DragMonitor.h"
#include "platform/InputGrab.h"
#include "platform/Pointer.h"
#include "platform/SessionLock.h"
#include "settings/AppSettings.h"
#include "store/Store.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo {

namespace {

constexpr double hoverMargin =
    40; ///< How far around the open panel the pointer still counts as on it.
constexpr Seconds closeDelay{0.35};

/// How long the bar shows that the timer has ended.
constexpr Seconds timerEndTime{5};

/// A window manager holds the keyboard until the key that it was pressed for is released.
constexpr Seconds grabPatience{0.4};
constexpr Seconds grabInterval{0.04};

constexpr Seconds hiddenWhenTaken{1};

} // namespace

NotchController::NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                                 Services services, HoverTick::Rest rest)
    : store_(store),
      clipboard_(clipboard),
      settings_(settings),
      services_(std::move(services)),
      guard_(services_.scheduler, services_.screens, services_.drags, services_.barrier),
      drop_(services_.drags, services_.transfers),
      tick_(services_.scheduler, services_.pointer, rest, [this] { return evaluateHover(); }),
      takenInput_(services_.scheduler, services_.inputGrab,
                  [this] { return hideIfInputIsTaken(); }) {
    idleDragCount_ = services_.drags.changeCount();
    guard_.start();
    connect(&store_, &Store::shelfChanged, this, &NotchController::resizeForShelf);
    connect(&store_, &Store::timerEnded, this, &NotchController::showTimerEnd);
    pressMonitor_ = services_.pointer.onPress([this] { pressedSomewhere(); });
    screensMonitor_ = services_.screens.onChange([this] { screensChanged(); });
    dragMonitor_ = services_.drags.onChange([this] {
        tick_.wake();
        lookAtDrag();
    });
    for (SessionLock* const lock : services_.locks) {
        lockMonitors_.push_back(lock->onChange([this] { lockChanged(); }));
    }
    lockChanged();
    HotKeyCenter::shared().release();
    store_.onTimerChange = [this] {
        if (store_.timerRunning()) {
            timerEndShown_.reset();
        }
        if (!isOpen_) {
            positionCollapsed();
        }
    };
}

NotchController::~NotchController() {
    store_.onTimerChange = nullptr;
}

HoverTick::Next NotchController::evaluateHover() {
    PointerState pointer = look();
    pointer.buttonDown = std::exchange(unseenPress_, false) || pointer.buttonDown;
    const auto on = screenFor(pointer.location, services_.screens.all(), services_.screens.main());
    if (!on || isLocked()) {
        return HoverTick::Next::still; // Screens that come back and the unlocking wake the tick.
    }
    if (!pointer.buttonDown) {
        idleDragCount_ = services_.drags.changeCount();
    }
    guardEdge(pointer);
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

void NotchController::guardEdge(const PointerState& pointer) {
    using Source = EdgeGuard::Source;
    const bool dragged = pointer.leftDown && (draggingOut_ || isDragOn(pointer));
    guard_.follow(dragged ? pointer.location : std::nullopt,
                  draggingOut_ ? Source::panel : Source::anotherProgram);
}

void NotchController::evaluateOpen(bool inZone, const PointerState& pointer) {
    const QRectF near = frame_.adjusted(-hoverMargin, -hoverMargin, hoverMargin, hoverMargin);
    if (inZone || isOver(near, pointer)) {
        closeWork_.reset();
    } else if (pointer.location || !closeWork_) {
        // Where no press elsewhere is ever told of, the delay is all that closes: it goes on then.
        scheduleClose();
    }
}

void NotchController::evaluateCollapsed(bool inZone, const Screen& screen,
                                        const PointerState& pointer) {
    if (isFileDragNear(screen, pointer)) {
        openForFiles();
        return;
    }
    const bool over = inZone || isOver(frame_, pointer);
    if (!hold_.update(over, pressOf(pointer))) {
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
    return isDragOn(pointer) && pointer.location &&
           isNearTopCentre(*pointer.location, screen, dragZoneHeight, dragZoneHalfWidth) &&
           !services_.drags.files().value_or(QList<QUrl>()).isEmpty();
}

HoverHold::Press NotchController::pressOf(const PointerState& pointer) const {
    if (!pointer.buttonDown) {
        return HoverHold::Press::none;
    }
    return isDragOn(pointer) ? HoverHold::Press::drag : HoverHold::Press::other;
}

bool NotchController::isDragOn(const PointerState& pointer) const {
    return pointer.buttonDown && services_.drags.changeCount() != idleDragCount_;
}

void NotchController::openForFiles() {
    store_.clearSelection();
    store_.requestShelf();
    positionExpanded();
}

bool NotchController::onDragEnter() {
    dragOver_ = drop_.enter() != Carries::nothing; // If refused, no leaving is reported.
    lookAtDrag();
    return dragOver_;
}

void NotchController::onDragLeave() {
    dragOver_ = false;
    lookAtDrag();
}

bool NotchController::onDrop() {
    const bool taken = mayCarryFiles();
    if (taken) {
        drop_.take([this, closings = closings_](const QList<QUrl>& files) {
            // What comes after the user has closed the panel does not open it again.
            closings == closings_ ? onFiles(files) : store_.addToShelf(files);
        });
    }
    onDragLeave();
    return taken;
}

bool NotchController::mayCarryFiles() {
    return drop_.carries() != Carries::nothing;
}

void NotchController::lookAtDrag() {
    const bool over = dragOver_ && drop_.carries() == Carries::files;
    if (std::exchange(filesOver_, over) == over) {
        return;
    }
    if (over && !isOpen_) {
        openForFiles();
    }
    Q_EMIT filesOverChanged();
}

void NotchController::onFiles(const QList<QUrl>& urls) {
    store_.addToShelf(urls);
    store_.requestShelf();
    open();
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
    const bool onPanel = isOver(frame_, look());
    hold_.pressed(onPanel ? HoverHold::Place::panel : HoverHold::Place::elsewhere);
    if (isOpen_ && !onPanel && !services_.pointer.isOverOwnWindow()) {
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
    ++closings_;
    stripTicks_ = 0;
    closeWork_.reset();
    services_.window.returnFocus();
    positionCollapsed();
}

void NotchController::dismiss() {
    if (isOpen_) {
        hold_.dismissed();
        collapse();
    }
}

void NotchController::toggle() {
    if (isOpen_) {
        dismiss();
    } else {
        openBefore(services_.scheduler.uptime() + grabPatience, Keyboard::requested);
    }
}

void NotchController::open() {
    openBefore(services_.scheduler.uptime() + grabPatience, Keyboard::left);
}

void NotchController::openBefore(Seconds end, Keyboard keyboard) {
    openWork_.reset();
    positionExpanded();
    if (isOpen_ && keyboard == Keyboard::requested) {
        typeFocus();
    } else if (!isOpen_ && !isLocked() && services_.scheduler.uptime() < end) {
        openWork_ = services_.scheduler.after(grabInterval,
                                              [this, end, keyboard] { openBefore(end, keyboard); });
    }
}

void NotchController::openSettings() {
    dismiss();
    Q_EMIT settingsRequested();
}

void NotchController::positionCollapsed() {
    const auto on = screen();
    const BarGeometry bar = on ? barGeometry(*on, settings_.macType()) : BarGeometry();
    const bool timerEnded(timerEndShown_);
    const bool showsBar = store_.timerRunning() || timerEnded || store_.reminderVisible();
    const QSizeF size = showsBar ? QSizeF(bar.width, bar.height) : handleSize;
    setCollapsed({showsBar, timerEnded, size, bar.notch});
    if (std::exchange(isOpen_, false)) {
        Q_EMIT isOpenChanged();
    }
    if (on) {
        setFrame(*on, size, showsBar ? barOutline(size, bar.notch) : handleOutline(size));
    }
}

void NotchController::showTimerEnd() {
    timerEndShown_ = services_.scheduler.after(timerEndTime, [this] {
        timerEndShown_.reset();
        if (!isOpen_) {
            positionCollapsed();
        }
    });
}

void NotchController::setCollapsed(const Collapsed& collapsed) {
    if (collapsed != collapsed_) {
        collapsed_ = collapsed;
        Q_EMIT collapsedChanged();
    }
}

void NotchController::positionExpanded() {
    const PointerState pointer = look();
    const auto on = screenFor(pointer.location, services_.screens.all(), services_.screens.main());
    if (isOpen_ || !on || isLocked() || isInputHeld(pointer)) {
        return;
    }
    isOpen_ = true;
    placeExpanded(*on); // First: what is shown is laid out for the frame.
    Q_EMIT isOpenChanged();
    services_.window.orderFront();
}

void NotchController::placeExpanded(const Screen& screen) {
    const QSizeF size = sizeOn(screen);
    setFrame(screen, size, panelOutline(size));
}

QSizeF NotchController::sizeToOpenWith() {
    const auto on = screen();
    return on ? sizeOn(*on) : QSizeF();
}

QSizeF NotchController::sizeOn(const Screen& screen) const {
    const bool empty = store_.shelf().stacks.isEmpty();
    return expandedSize(settings_.panelWidth(), empty ? ShelfContent::none : ShelfContent::files,
                        screen);
}

void NotchController::resizeForShelf() {
    const auto on = screen();
    if (isOpen_ && on && std::abs(sizeOn(*on).height() - frame_.height()) > 1) {
        placeExpanded(*on);
    }
}

bool NotchController::isLocked() const {
    return std::ranges::any_of(services_.locks, &SessionLock::isLocked);
}

/// A client that holds pointer and keyboard may be an unknown locker; the source of a drag
/// may hold both too.
bool NotchController::isInputHeld(const PointerState& pointer) {
    return services_.inputGrab.isHeldByAnother() && !filesOver_ &&
           !(isDragOn(pointer) && !services_.drags.files().value_or(QList<QUrl>()).isEmpty());
}

TakenInput::Look NotchController::hideIfInputIsTaken() {
    if (!isOpen_) {
        return TakenInput::Look::enough;
    }
    if (!isInputHeld(look())) {
        return TakenInput::Look::again;
    }
    hide();
    // What took the input says nothing when it gives it back, and may have been a menu.
    reappearWork_ = services_.scheduler.after(hiddenWhenTaken, [this] { lockChanged(); });
    return TakenInput::Look::enough;
}

void NotchController::hide() {
    guard_.follow(std::nullopt);
    openWork_.reset();
    services_.window.returnFocus(); // Only a window that is shown can give it back.
    services_.window.orderOut();
    collapse();
}

void NotchController::lockChanged() {
    if (isLocked()) {
        hide();
    } else {
        if (!isOpen_) {
            positionCollapsed();
        }
        services_.window.orderFront();
    }
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

void NotchController::setDraggingOut(bool dragging) {
    draggingOut_ = dragging;
    tick_.wake();
}

void NotchController::copy(const QString& text) {
    clipboard_.copyText(text);
}

void NotchController::copyImage(const QString& path) {
    clipboard_.copyImage(path);
}

void NotchController::copyFile(const QUrl& file) {
    clipboard_.copyFile(file);
}

void NotchController::typeFocus() {
    if (isOpen_) {
        services_.window.requestFocus();
    }
}

} // namespace ravelo
