#include "platform/wayland/window/WaylandPanelWindow.h"

#include "platform/wayland/connection/QtConnection.h"
#include "platform/wayland/input/MimeDragOffer.h"
#include "platform/wayland/screens/WaylandScreens.h"
#include "platform/wayland/window/Strip.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSurfaceFormat>
#include <QTimer>
#include <QTransform>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ravelo::wayland {

namespace {

/// Enough for any usual panel.
constexpr int usualWidth = 1024;

/// A compositor that has not taken the keyboard back by then keeps it here.
constexpr std::chrono::milliseconds returnTime(50);

/// If the compositor does not report that the keyboard is gone.
constexpr std::chrono::milliseconds goneTime(1000);

/// Even, as most screens are: half pixels on both sides would blur it.
int evenWidth(int width) {
    return width + width % 2;
}

} // namespace

WaylandPanelWindow::WaylandPanelWindow(QWindow& window, Surfaces& surfaces)
    : window_(window),
      surfaces_(surfaces),
      surfaceSize_(usualWidth, stripSize.height()),
      pointerOver_(window),
      catcherSubscription_(surfaces.seat().onChange([this](auto change, wl_surface* surface) {
          const auto isIt = [surface](const auto& catcher) {
              return catcher.second->surface() == surface;
          };
          if (change == InputSeat::Change::pressed && std::ranges::any_of(catchers_, isIt)) {
              pressedOutside();
          }
      })),
      blurSubscription_(surfaces.blur().onChange([this] { applyOutline(); })) {
    window_.setFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint); // Gets no role by Qt.
    QSurfaceFormat format = window_.requestedFormat();
    format.setAlphaBufferSize(8);
    window_.setFormat(format);
    // Gets events before `pointerOver_`: what is dragged is known first.
    window_.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this] {
        if (wantsKeyboard()) {
            catchPresses();
        }
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen* gone) {
        catchers_.erase(gone->name());
        if (gone->name() == screen_) {
            hide(); // Not every compositor reports that it is closed.
        }
    });
}

WaylandPanelWindow::~WaylandPanelWindow() {
    hide();
}

void WaylandPanelWindow::place(const Screen& screen, QSizeF size) {
    const QSize sizeBefore = std::exchange(size_, size.toSize());
    const QSize surface(std::max(surfaceSize_.width(), evenWidth(size_.width())),
                        std::max(stripSize.height(), size_.height()));
    const QSize before = std::exchange(surfaceSize_, surface);
    if (surface.height() > before.height() && mayCoverLocker()) {
        hide(); // A new surface lies below the locker.
    } else if (surface != before && role_) {
        role_->resize(surface);
        commit();
    }
    if (size_ != sizeBefore) {
        applyOutline();
    }
    moveTo(screen.id);
}

void WaylandPanelWindow::moveTo(const QString& screen) {
    if (std::exchange(screen_, screen) != screen) {
        hide();
    }
    show();
}

void WaylandPanelWindow::orderFront() {
    wanted_ = true;
    show();
}

void WaylandPanelWindow::orderOut() {
    wanted_ = false;
    hide();
}

void WaylandPanelWindow::show() {
    QScreen* const screen = WaylandScreens::find(screen_);
    if (!wanted_ || isGoing_ || role_ || screen == nullptr) {
        return; // Without a screen: the next one will be reported.
    }
    window_.setScreen(screen);
    window_.resize(surfaceSize_);
    window_.create();
    role_ = std::make_unique<LayerRole>(surfaces_.shell(), *qt::surface(window_),
                                        qt::output(screen), surfaceSize_, keyboard_,
                                        LayerRole::Events{[this](QSize size) { configure(size); },
                                                          [this] {
                                                              showAgainSoon();
                                                          }});
    commit();
    if (wantsKeyboard()) {
        catchPresses(); // hide() has dropped them.
    }
}

void WaylandPanelWindow::hide() {
    catchers_.clear();
    isDraggedOver_ = false;
    surfaces_.blur().forget();
    role_.reset(); // Before its surface.
    window_.hide();
    window_.destroy();
    pointerOver_.leave();
}

void WaylandPanelWindow::configure(QSize size) {
    window_.resize(size);
    applyOutline();
    window_.show();
    if (surfaces_.fitBuffers()) {
        // Before it is shown, Qt takes up the whole scale that the compositor prefers, and keeps
        // it.
        wl_surface_set_buffer_scale(qt::surface(window_), 1);
    }
    window_.requestUpdate(); // The compositor waits for a frame even if the size is the same.
}

/// Whoever has the pointer or the keyboard is not locked out.
bool WaylandPanelWindow::mayCoverLocker() const {
    return surfaces_.coverLockers() && !pointerOver_ && !wantsKeyboard();
}

/// The output may be gone, or return.
void WaylandPanelWindow::showAgainSoon() {
    hide();
    QTimer::singleShot(0, this, [this] { show(); });
}

void WaylandPanelWindow::setOutline(const QPainterPath& outline) {
    outline_ = outline;
    applyOutline();
}

PanelWindow::ShowThrough WaylandPanelWindow::showThrough() const {
    return surfaces_.blur().isOffered() ? ShowThrough::blurred : ShowThrough::sharp;
}

Handle WaylandPanelWindow::onShowThroughChange(std::function<void()> callback) {
    return surfaces_.blur().onChange(std::move(callback));
}

void WaylandPanelWindow::requestFocus(const QByteArray& /*activationToken*/) {
    surfaces_.activeWindow().follow(); // First: it reports which one is active before the panel.
    setKeyboard(Keyboard::exclusive);
    catchPresses();
}

void WaylandPanelWindow::returnFocus() {
    takesKeyboardAgain_ = false;
    catchers_.clear();
    setKeyboard(Keyboard::none);
    surfaces_.activeWindow().stopSoon();
    giveBackSoon();
}

/// The keyboard is not given back, as in returnFocus: the user is about to choose who gets it.
void WaylandPanelWindow::setDraggingOut(bool dragging) {
    if (std::exchange(draggingOut_, dragging) == dragging) {
        return;
    }
    if (dragging) {
        takesKeyboardAgain_ = wantsKeyboard();
        catchers_.clear();
        setKeyboard(Keyboard::none);
        surfaces_.activeWindow().stopSoon();
    } else { // The pointer may come back later than the drag ends.
        QTimer::singleShot(returnTime, this, [this] { endDragOut(); });
    }
}

void WaylandPanelWindow::endDragOut() {
    if (draggingOut_) {
        return; // Another one.
    }
    // For Qt the pointer leaves when a drag begins, also if the compositor refuses that because the
    // button is up again.
    if (surfaces_.seat().isOver(qt::surface(window_))) {
        pointerOver_.enter();
    }
    if (wantsKeyboard() || (takesKeyboardAgain_ && isUnderPointer())) {
        requestFocus({}); // It was dropped here, or requested meanwhile.
    } else {
        giveBackSoon();
    }
}

/// Also if Qt does not know yet that the keyboard is here. Not during a drag, which would lose its
/// target or its source: KWin gives the keyboard to what a drag is over.
void WaylandPanelWindow::giveBackSoon() {
    if (draggingOut_) {
        return; // Its end decides who gets the keyboard.
    }
    QTimer::singleShot(returnTime, this, [this] {
        if (QGuiApplication::focusWindow() == &window_ && keyboard_ == Keyboard::none && role_ &&
            !isDraggedOver_ && !draggingOut_) {
            goForAMoment();
        }
    });
}

/// KWin gives the keyboard to another window only if this one goes. Qt must learn that before the
/// surface is destroyed, or it complains.
void WaylandPanelWindow::goForAMoment() {
    surfaces_.blur().forget();
    role_.reset();
    wl_display_flush(qt::display());
    isGoing_ = true;
    QTimer::singleShot(goneTime, this, [this] { comeBack(); });
}

void WaylandPanelWindow::comeBack() {
    if (std::exchange(isGoing_, false)) {
        hide();
        show();
    }
}

void WaylandPanelWindow::setKeyboard(Keyboard keyboard) {
    if (std::exchange(keyboard_, keyboard) != keyboard && role_) {
        role_->setKeyboard(keyboard);
        commit();
    }
}

bool WaylandPanelWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
        isDraggedOver_ = true;
        enterDrag(*event);
        break;
    case QEvent::DragMove: // Without an entry, if the surface is new.
        isDraggedOver_ = true;
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        isDraggedOver_ = false;
        giveBackSoon();
        break;
    case QEvent::MouseButtonPress:
        pressListeners_.notify(HotZone::Press::onPanel);
        break;
    case QEvent::FocusIn:
        if (!wantsKeyboard()) {
            giveBackSoon(); // It was on its way when it was returned.
        }
        break;
    case QEvent::FocusOut:
        if (isGoing_) {
            QTimer::singleShot(0, this, [this] { comeBack(); });
        } else if (wantsKeyboard()) {
            pressedOutside();
        }
        break;
    default:
        break;
    }
    return false;
}

void WaylandPanelWindow::enterDrag(QEvent& event) {
    dragOffer_ = surfaces_.drops().over(qt::surface(window_));
    if (!dragOffer_) {
        dragOffer_ =
            std::make_shared<MimeDragOffer>(static_cast<QDragEnterEvent&>(event).mimeData());
    }
}

void WaylandPanelWindow::pressedOutside() {
    pressListeners_.notify(HotZone::Press::elsewhere);
}

/// On most compositors, a layer surface that has the keyboard keeps it when another window is
/// clicked, and is not told. So that click goes to us. KWin would give the keyboard to the catcher.
void WaylandPanelWindow::catchPresses() {
    if (draggingOut_ || surfaces_.loseKeyboardByPress()) {
        return;
    }
    for (QScreen* const screen : QGuiApplication::screens()) {
        if (catchers_.contains(screen->name())) {
            continue;
        }
        if (auto catcher = surfaces_.makeInvisible(screen, wholeOutput)) {
            catchers_[screen->name()] = std::move(catcher);
        }
    }
    keepPressesOnPanel();
}

void WaylandPanelWindow::keepPressesOnPanel() {
    if (const auto above = catchers_.find(screen_); above != catchers_.end()) {
        above->second->setHole(inputRegion(), surfaceSize_);
    }
}

void WaylandPanelWindow::applyOutline() {
    wl_surface* const surface = role_ ? qt::surface(window_) : nullptr;
    const QRectF room = QRectF({}, size_).adjusted(-1, -1, 1, 1);
    if (surface == nullptr || !room.contains(outline_.boundingRect())) {
        return; // It will be shown, or placed in a larger size.
    }
    window_.setMask(inputRegion());
    surfaces_.blur().apply(*surface, outlineRegion());
    commit();
    keepPressesOnPanel();
}

void WaylandPanelWindow::commit() {
    wl_surface_commit(qt::surface(window_));
    wl_display_flush(qt::display());
}

QRect WaylandPanelWindow::panelRect() const {
    return {QPoint((surfaceSize_.width() - size_.width()) / 2, 0), size_};
}

QRegion WaylandPanelWindow::outlineRegion() const {
    const QPolygonF polygon = outline_.toFillPolygon(QTransform());
    return QRegion(polygon.toPolygon(), Qt::WindingFill).translated(panelRect().topLeft());
}

QRegion WaylandPanelWindow::inputRegion() const {
    const int left = (surfaceSize_.width() - stripSize.width()) / 2;
    return outlineRegion() + QRect(QPoint(left, 0), stripSize);
}

} // namespace ravelo::wayland
