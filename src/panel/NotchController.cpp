#include "panel/NotchController.h"

#include "clipboard/ClipboardManager.h"
#include "panel/HotKeyCenter.h"
#include "panel/NotchGeometry.h"
#include "panel/NotchShape.h"
#include "platform/DragMonitor.h"
#include "platform/SessionLock.h"
#include "settings/AppSettings.h"
#include "store/Store.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds closeDelay{0.35};

/// How long the bar shows that the timer has ended.
constexpr Seconds timerEndTime{5};

/// A window manager keeps the keyboard until its shortcut's key is released.
constexpr Seconds grabTimeout{0.4};
constexpr Seconds grabInterval{0.04};

constexpr Seconds hiddenWhenTaken{1};

} // namespace

NotchController::NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                                 Services services)
    : store_(store),
      clipboard_(clipboard),
      settings_(settings),
      services_(std::move(services)),
      foreignDrag_(services_.drags),
      drop_(services_.transfers, [this] { lookAtDrag(); }),
      takenInput_(services_.scheduler, services_.inputGrab,
                  [this] { return hideIfInputIsTaken(); }) {
    if (services_.barrier != nullptr) {
        guard_.emplace(services_.scheduler, services_.screens, *services_.barrier,
                       [this] { return foreignDrag_.carriesFiles(); });
        guard_->start();
    }
    connect(&store_, &Store::shelfChanged, this, &NotchController::resizeForShelf);
    connect(&store_, &Store::timerEnded, this, &NotchController::showTimerEnd);
    sights_ = services_.zone.onSight([this](const auto& sight) { return evaluateHover(sight); });
    pressMonitor_ = services_.zone.onPress([this](HotZone::Press press) { pressed(press); });
    screensMonitor_ = services_.screens.onChange([this] { screensChanged(); });
    dragMonitor_ = services_.drags.onChange([this] { services_.zone.lookAgain(); });
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

HotZone::Report NotchController::evaluateHover(const HotZone::Sight& sight) {
    if (!sight.screen || isLocked()) {
        return HotZone::Report::onChange; // Screens that return, and unlocking, ask for a report.
    }
    if (!sight.buttonDown) {
        foreignDrag_.buttonsUp();
    }
    guardEdge(sight);
    isOpen_ ? evaluateOpen(sight) : evaluateCollapsed(sight);
    return closeWork_ ? HotZone::Report::again : HotZone::Report::onChange;
}

void NotchController::guardEdge(const HotZone::Sight& sight) {
    using Source = EdgeGuard::Source;
    if (guard_) {
        const bool dragged = sight.leftDown && (draggingOut_ || isDragOn(sight));
        guard_->follow(dragged ? sight.location : std::nullopt,
                       draggingOut_ ? Source::panel : Source::anotherProgram);
    }
}

void NotchController::evaluateOpen(const HotZone::Sight& sight) {
    if (sight.inZone || sight.nearPanel) {
        awaitsPointer_ = false;
        closeIsPutOff_ = false;
        closeWork_.reset();
    } else if (services_.zone.reportsPressesElsewhere()) {
        // Each look would put it off again, so it is scheduled once there are none any more.
        closeIsPutOff_ = true;
        closeWork_.reset();
    } else if (std::exchange(closeIsPutOff_, false) ||
               !(closeWork_ || awaitsPointer_ || draggingOut_)) {
        scheduleClose();
    }
}

void NotchController::evaluateCollapsed(const HotZone::Sight& sight) {
    if (sight.inDragZone && isDragOn(sight) && foreignDrag_.carriesFiles()) {
        openForFiles();
        return;
    }
    if (!hold_.update(sight.inZone || sight.onPanel, pressOf(sight))) {
        stripTicks_ = 0;
        return;
    }
    if (++stripTicks_ >= 1) {
        expand(sight, services_.inputGrab.ask());
    }
}

HoverHold::Press NotchController::pressOf(const HotZone::Sight& sight) const {
    if (!sight.buttonDown) {
        return HoverHold::Press::none;
    }
    return isDragOn(sight) ? HoverHold::Press::drag : HoverHold::Press::other;
}

bool NotchController::isDragOn(const HotZone::Sight& sight) const {
    return sight.buttonDown && foreignDrag_.isOn();
}

void NotchController::openForFiles() {
    store_.clearSelection();
    store_.requestShelf();
    positionExpanded();
}

bool NotchController::onDragEnter() {
    // A refused drag is not reported when it leaves.
    dragOver_ = drop_.enter(services_.window.dragOffer()) != Carries::nothing;
    lookAtDrag();
    return dragOver_;
}

void NotchController::onDragLeave() {
    dragOver_ = false;
    lookAtDrag();
}

bool NotchController::onDrop() {
    const bool accepted = mayCarryFiles();
    if (accepted) {
        drop_.drop([this, closings = closings_](const QList<QUrl>& files) {
            // Files that come after the user has closed the panel do not open it again.
            closings == closings_ ? onFiles(files) : store_.addToShelf(files);
        });
    }
    onDragLeave();
    return accepted;
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

void NotchController::pressed(HotZone::Press press) {
    const bool onPanel = press == HotZone::Press::onPanel;
    hold_.pressed(onPanel ? HoverHold::Place::panel : HoverHold::Place::elsewhere);
    if (isOpen_ && press == HotZone::Press::elsewhere) {
        collapse();
    }
}

void NotchController::screensChanged() {
    if (!isOpen_) {
        positionCollapsed();
    } else if (const auto on = screenOfPanel()) {
        placeExpanded(*on);
    } else if (std::exchange(closeIsPutOff_, false)) {
        scheduleClose();
    }
}

/// Where it opened; where the pointer is if that screen is gone.
std::optional<Screen> NotchController::screenOfPanel() {
    const auto all = services_.screens.all();
    const auto found = std::ranges::find(all, screenId_, &Screen::id);
    return found != all.end() ? std::optional(*found) : services_.zone.look().screen;
}

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

void NotchController::toggle(const QByteArray& activationToken) {
    if (isOpen_) {
        dismiss();
    } else {
        openBefore({services_.scheduler.uptime() + grabTimeout, Opening::Keyboard::requested,
                    activationToken});
    }
}

void NotchController::open() {
    openBefore({services_.scheduler.uptime() + grabTimeout, Opening::Keyboard::ifNeeded});
}

void NotchController::openBefore(Opening opening) {
    openWork_.reset();
    positionExpanded();
    const bool closesByKeyboard = awaitsPointer_ && services_.zone.needsKeyboardForPresses();
    if (isOpen_ && (opening.keyboard == Opening::Keyboard::requested || closesByKeyboard)) {
        services_.window.requestFocus(opening.activationToken);
    } else if (!isOpen_ && !isLocked() && services_.scheduler.uptime() < opening.end) {
        openWork_ = services_.scheduler.after(
            grabInterval, [this, again = std::move(opening)] { openBefore(again); });
    }
}

void NotchController::openSettings() {
    dismiss();
    Q_EMIT settingsRequested();
}

void NotchController::positionCollapsed() {
    const auto on = services_.zone.look().screen;
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
    if (!isOpen_ && !isLocked()) {
        const auto grab = services_.inputGrab.ask(); // First: both answers come at once.
        expand(services_.zone.look(), grab);
    }
}

void NotchController::expand(const HotZone::Sight& sight, const InputGrab::Answer& grab) {
    if (!sight.screen || isInputHeld(sight, grab)) {
        return;
    }
    isOpen_ = true;
    closeIsPutOff_ = false;
    awaitsPointer_ = !sight.inZone && !sight.nearPanel;
    placeExpanded(*sight.screen); // First: what is shown is laid out for the frame.
    Q_EMIT isOpenChanged();
    services_.window.orderFront();
}

void NotchController::placeExpanded(const Screen& screen) {
    const QSizeF size = sizeOn(screen);
    setFrame(screen, size, panelOutline(size));
}

QSizeF NotchController::sizeToOpenWith() {
    const auto on = services_.zone.look().screen;
    return on ? sizeOn(*on) : QSizeF();
}

QSizeF NotchController::sizeOn(const Screen& screen) const {
    const bool empty = store_.shelf().stacks.isEmpty();
    return expandedSize(settings_.panelWidth(), empty ? ShelfContent::none : ShelfContent::files,
                        screen);
}

void NotchController::resizeForShelf() {
    const auto on = screenOfPanel();
    if (isOpen_ && on && std::abs(sizeOn(*on).height() - frame_.height()) > 1) {
        placeExpanded(*on);
    }
}

bool NotchController::isLocked() const {
    return std::ranges::any_of(services_.locks, &SessionLock::isLocked);
}

/// A client that holds pointer and keyboard may be an unknown locker; the source of a drag
/// may hold both too.
bool NotchController::isInputHeld(const HotZone::Sight& sight, const InputGrab::Answer& grab) {
    return grab() && !filesOver_ && !(isDragOn(sight) && foreignDrag_.carriesFiles());
}

TakenInput::Look NotchController::hideIfInputIsTaken() {
    if (!isOpen_) {
        return TakenInput::Look::enough;
    }
    const auto grab = services_.inputGrab.ask();
    if (!isInputHeld(services_.zone.look(), grab)) {
        return TakenInput::Look::again;
    }
    hide();
    // Nobody reports the end of a grab, and it may have been a menu's.
    reappearWork_ = services_.scheduler.after(hiddenWhenTaken, [this] { lockChanged(); });
    return TakenInput::Look::enough;
}

void NotchController::hide() {
    if (guard_) {
        guard_->follow(std::nullopt);
    }
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
    const bool grows = size.height() > frame_.height();
    frame_ = hangingFrame(screen, size);
    screenId_ = screen.id;
    if (grows) { // First, or a click on the new part would go to what is below.
        services_.window.setOutline(outline);
    }
    services_.window.place(screen, size);
    if (!grows) {
        services_.window.setOutline(outline);
    }
    services_.zone.setPanel(frame_);
}

void NotchController::setDraggingOut(bool dragging) {
    draggingOut_ = dragging;
    services_.zone.setDraggingOut(dragging);
    services_.zone.lookAgain();
}

void NotchController::copy(const QString& text) {
    clipboard_.copyText(text);
}

void NotchController::copyImage(const QString& path) {
    clipboard_.copyImage(path);
}

void NotchController::typeFocus() {
    if (isOpen_) {
        services_.window.requestFocus({});
    }
}

} // namespace ravelo
