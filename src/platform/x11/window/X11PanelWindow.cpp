#include "platform/x11/window/X11PanelWindow.h"

#include "platform/x11/connection/Properties.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPlatformSurfaceEvent>
#include <QPolygonF>
#include <QTransform>
#include <QWindow>

#include <algorithm>
#include <limits>
#include <utility>

namespace ravelo::x11 {

namespace {

template <typename Target>
Target clamped(int value) {
    return static_cast<Target>(std::clamp<int>(value, std::numeric_limits<Target>::min(),
                                               std::numeric_limits<Target>::max()));
}

std::vector<xcb_rectangle_t> rectanglesOf(const QRegion& region) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region) {
        rectangles.push_back({clamped<int16_t>(rect.x()), clamped<int16_t>(rect.y()),
                              clamped<uint16_t>(rect.width()), clamped<uint16_t>(rect.height())});
    }
    return rectangles;
}

constexpr int highestBar = 100; ///< Logical pixels; panels that are open are higher.

} // namespace

X11PanelWindow::X11PanelWindow(QWindow& window, Connection& connection, Events& events,
                               const X11Screens& screens, ManagerSelection& compositor,
                               ForeignCover& cover, DragMonitor& drags, InputFocus& focus,
                               Leaving leaving)
    : window_(window),
      screens_(screens),
      compositor_(compositor),
      cover_(cover),
      drags_(drags),
      qt_(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection()),
      focus_(focus),
      shadow_(connection.atom("_COMPTON_SHADOW")),
      skipCloseAnimation_(connection.atom("_KDE_NET_WM_SKIP_CLOSE_ANIMATION")),
      blur_(connection, events),
      fade_(qt_, connection),
      pointerOver_(window),
      restackingNotices_{connection.atom("_NET_CLIENT_LIST"),
                         connection.atom("_NET_CLIENT_LIST_STACKING"),
                         connection.atom("_NET_ACTIVE_WINDOW"), connection.atom("_NET_WORKAREA")},
      pointerSubscription_(pointerOver_.onChange([this] {
          isPressed_ = false; // A release elsewhere may not be reported.
          watchOutside();
      })),
      compositorSubscription_(compositor.onChange([this] {
          applyOutline();
          showThroughListeners_.notify();
      })),
      blurSubscription_(blur_.onChange([this] { showThroughListeners_.notify(); })),
      eventSubscription_(events.onEvent([this](const auto& event) {
          stayAbove(event);
          if (outside_ && outside_->isEntered(event)) { // If Qt has missed it.
              outside_->hide();
              pointerOver_.leave();
          }
      })) {
    if (leaving == Leaving::missed) {
        outside_.emplace(connection);
    }
    window_.setFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint |
                     Qt::WindowStaysOnTopHint);
    QSurfaceFormat format = window_.requestedFormat();
    format.setAlphaBufferSize(8);
    window_.setFormat(format);
    window_.installEventFilter(this);
    window_.create();
}

void X11PanelWindow::place(const Screen& screen, QSizeF size) {
    const Monitor* monitor = screens_.monitor(screen.id);
    if (monitor == nullptr) {
        if (outside_) {
            outside_->hide();
        }
        return; // It went away; the notice of that is on its way.
    }
    const QSize logicalSize = size.toSize();
    const QSize nativeSize = (QSizeF(logicalSize) * monitor->scale).toSize();
    const QPoint corner(monitor->native.x() + (monitor->native.width() - nativeSize.width()) / 2,
                        monitor->native.y());
    const QRectF logical = toLogical(*monitor, QRect(corner, nativeSize));
    if (std::exchange(nativeSize_, nativeSize) != nativeSize) {
        const bool hasPicture = firstPicture_ && firstPicture_->size() == nativeSize;
        showFirst(hasPicture ? firstPicture_->pixmap() : XCB_NONE);
    }
    window_.setGeometry(QRect(logical.topLeft().toPoint(), logicalSize));
    // Qt knows whole logical pixels only, which at scale 2 may be one device pixel off the middle.
    const auto left = static_cast<uint32_t>(corner.x());
    xcb_configure_window(qt_, id_, XCB_CONFIG_WINDOW_X, &left);
    xcb_flush(qt_);                      // Qt flushes only when it has something to do itself.
    cover_.follow(id_, monitor->native); // Last: it asks the server, which shall paint first.
    // Mutter cuts the shape of an XWayland window to the size that it knows, and does not look
    // again.
    if (std::exchange(scale_, monitor->scale) != monitor->scale || outside_) {
        applyOutline();
    }
    monitor_ = monitor->native;
    watchOutside();
}

void X11PanelWindow::orderFront() {
    window_.setVisible(true);
    window_.raise(); // When mapped again it may be below others.
    xcb_flush(qt_);
}

void X11PanelWindow::orderOut() {
    if (outside_) {
        outside_->hide();
    }
    window_.setVisible(false);
    xcb_flush(qt_);
}

bool X11PanelWindow::setFirstPicture(const QImage& picture) {
    if (!window_.format().hasAlpha()) {
        return false; // The window has another depth.
    }
    firstPicture_.reset();
    if (!picture.isNull()) {
        firstPicture_.emplace(qt_, id_, picture);
    }
    xcb_flush(qt_); // The server frees the old one now.
    return true;
}

/// What the server paints by itself as soon as the window has another size, if anything.
void X11PanelWindow::showFirst(xcb_pixmap_t picture) {
    const bool any = picture != XCB_NONE;
    const uint32_t value = any ? picture : 0;
    xcb_change_window_attributes(qt_, id_, any ? XCB_CW_BACK_PIXMAP : XCB_CW_BACK_PIXEL, &value);
    if (any && showThrough() != ShowThrough::none) {
        fade_.start(id_);
    } else {
        fade_.stop();
    }
}

void X11PanelWindow::setOutline(const QPainterPath& outline) {
    outline_ = outline;
    applyOutline();
}

PanelWindow::ShowThrough X11PanelWindow::showThrough() const {
    if (!compositor_.isOwned() || !window_.format().hasAlpha()) {
        return ShowThrough::none;
    }
    return blur_.isAnnounced() ? ShowThrough::blurred : ShowThrough::sharp;
}

Handle X11PanelWindow::onShowThroughChange(std::function<void()> callback) {
    return showThroughListeners_.add(std::move(callback));
}

void X11PanelWindow::requestFocus(const QByteArray& /*activationToken*/) {
    focus_.borrow(id_);
}

void X11PanelWindow::returnFocus() {
    focus_.giveBack(id_);
}

bool X11PanelWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::PlatformSurface &&
        static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated) {
        prepareNativeWindow();
    } else if (outside_) {
        followDrags(*event);
    }
    return false;
}

void X11PanelWindow::followDrags(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        isPressed_ = static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
        break;
    case QEvent::DragEnter:
        isDraggedOver_ = true;
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        isDraggedOver_ = false;
        break;
    default:
        return;
    }
    watchOutside();
}

/// Not during a drag, which may go to any window, nor for the handle and the bar, which cover
/// little.
void X11PanelWindow::watchOutside() {
    if (!outside_) {
        return;
    }
    const bool isOpen = nativeSize_.height() > highestBar * scale_;
    if (pointerOver_ && !isPressed_ && !isDraggedOver_ && isOpen) {
        outside_->showBelow(id_, monitor_);
    } else {
        outside_->hide();
    }
}

// Xfwm4 puts bars that come later, and every bar when it is restarted, above all windows that it
// does not manage; i3 does so with every new window. The root window's properties, which X11Screens
// watches, change when they do.
void X11PanelWindow::stayAbove(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && window_.isVisible() && !cover_.isLocked() &&
        std::find(restackingNotices_.begin(), restackingNotices_.end(), change->atom) !=
            restackingNotices_.end()) {
        window_.raise();
        xcb_flush(qt_);
    }
}

void X11PanelWindow::prepareNativeWindow() {
    id_ = static_cast<xcb_window_t>(window_.winId());
    setCardinals(qt_, id_, shadow_, {0});
    setCardinals(qt_, id_, skipCloseAnimation_, {1}); // KWin would fade it out above a locker.
    // Nothing of what was shown at one size may be seen for a moment at the next.
    const uint32_t attributes[] = {0, XCB_GRAVITY_BIT_FORGET};
    xcb_change_window_attributes(qt_, id_, XCB_CW_BACK_PIXEL | XCB_CW_BIT_GRAVITY, attributes);
    applyOutline();
}

void X11PanelWindow::applyOutline() {
    if (!outline_) {
        return;
    }
    const QRegion outline = outlineRegion(*outline_, scale_);
    const auto rectangles = rectanglesOf(outline);
    setShape(XCB_SHAPE_SK_INPUT, rectangles);
    if (showThrough() != ShowThrough::none) {
        xcb_shape_mask(qt_, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id_, 0, 0, XCB_PIXMAP_NONE);
    } else {
        setShape(XCB_SHAPE_SK_BOUNDING, rectangles);
    }
    std::vector<uint32_t> blurred;
    for (const xcb_rectangle_t& rectangle : rectangles) {
        blurred.insert(blurred.end(),
                       {static_cast<uint32_t>(rectangle.x), static_cast<uint32_t>(rectangle.y),
                        rectangle.width, rectangle.height});
    }
    if (blurred.empty()) { // An empty region would stand for the whole window.
        xcb_delete_property(qt_, id_, blur_.property());
    } else {
        setCardinals(qt_, id_, blur_.property(), blurred);
    }
    xcb_flush(qt_);
}

void X11PanelWindow::setShape(xcb_shape_kind_t kind,
                              const std::vector<xcb_rectangle_t>& rectangles) {
    xcb_shape_rectangles(qt_, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_YX_BANDED, id_, 0, 0,
                         static_cast<uint32_t>(rectangles.size()), rectangles.data());
}

QRegion outlineRegion(const QPainterPath& outline, double scale) {
    const QPolygonF polygon = outline.toFillPolygon(QTransform::fromScale(scale, scale));
    return QRegion(polygon.toPolygon(), Qt::WindingFill);
}

} // namespace ravelo::x11
