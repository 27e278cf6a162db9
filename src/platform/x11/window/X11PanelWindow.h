#pragma once

#include "base/Listeners.h"
#include "platform/DragMonitor.h"
#include "platform/PanelWindow.h"
#include "platform/window/PointerOver.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/settings/ManagerSelection.h"
#include "platform/x11/window/BlurEffect.h"
#include "platform/x11/window/ForeignCover.h"
#include "platform/x11/window/InputFocus.h"
#include "platform/x11/window/OutsideWindow.h"
#include "platform/x11/window/ServerPicture.h"
#include "platform/x11/window/WindowFade.h"

#include <QObject>
#include <QPainterPath>
#include <QRegion>

#include <xcb/shape.h>

#include <optional>
#include <vector>

class QWindow;

namespace ravelo::x11 {

/// An override-redirect window: the only kind that every window manager allows above bars and above
/// a focused full-screen window. Requests about its own window go through Qt's connection, so that
/// they stay in order with Qt's.
class X11PanelWindow : public PanelWindow, private QObject {
public:
    /// Whether the server reports that the pointer has left; see OutsideWindow.
    enum class Leaving { reported, missed };

    /// All must outlive it; `window` must not have been shown. Makes the native window.
    X11PanelWindow(QWindow& window, Connection& connection, Events& events,
                   const X11Screens& screens, ManagerSelection& compositor, ForeignCover& cover,
                   DragMonitor& drags, InputFocus& focus, Leaving leaving = Leaving::reported);

    void place(const Screen& screen, QSizeF size) override;
    void orderFront() override;
    void orderOut() override;
    bool setFirstPicture(const QImage& picture) override;
    void setOutline(const QPainterPath& outline) override;
    [[nodiscard]] ShowThrough showThrough() const override;
    [[nodiscard]] Handle onShowThroughChange(std::function<void()> callback) override;

    [[nodiscard]] bool isUnderPointer() const override { return bool(pointerOver_); }

    [[nodiscard]] Handle onUnderPointerChange(std::function<void()> callback) override {
        return pointerOver_.onChange(std::move(callback));
    }

    /// That of the newest drag: XDND itself would have us wait for the source.
    [[nodiscard]] std::shared_ptr<DragOffer> dragOffer() override { return drags_.newest(); }

    /// Needs no token: X11 lets us set the focus.
    void requestFocus(const QByteArray& activationToken) override;
    void returnFocus() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void stayAbove(const xcb_generic_event_t& event);
    void prepareNativeWindow();
    void showFirst(xcb_pixmap_t picture);
    void applyOutline();
    void followDrags(const QEvent& event);
    void watchOutside();
    void setShape(xcb_shape_kind_t kind, const std::vector<xcb_rectangle_t>& rectangles);

    QWindow& window_;
    const X11Screens& screens_;
    ManagerSelection& compositor_;
    ForeignCover& cover_;
    DragMonitor& drags_;
    xcb_connection_t* qt_; ///< Qt's own connection.
    InputFocus& focus_;
    std::optional<OutsideWindow> outside_; ///< Only if leaving is missed.
    const xcb_atom_t shadow_;
    const xcb_atom_t skipCloseAnimation_;
    BlurEffect blur_;
    QSize nativeSize_; ///< Of the last placement, in device pixels.
    QRect monitor_;    ///< That of the last placement, in device pixels.
    bool isPressed_ = false;
    bool isDraggedOver_ = false;
    std::optional<ServerPicture> firstPicture_;
    WindowFade fade_;
    Listeners<> showThroughListeners_;
    PointerOver pointerOver_;
    std::optional<QPainterPath> outline_;
    double scale_ = 1; ///< Device pixels per logical pixel on the monitor of the last placement.
    xcb_window_t id_ = XCB_WINDOW_NONE;
    const std::vector<xcb_atom_t> restackingNotices_;
    Handle pointerSubscription_;
    Handle compositorSubscription_;
    Handle blurSubscription_;
    Handle eventSubscription_;
};

/// The device pixels that `outline`, in logical pixels, covers at this scale.
[[nodiscard]] QRegion outlineRegion(const QPainterPath& outline, double scale);

} // namespace ravelo::x11
