#pragma once

#include "base/Listeners.h"
#include "platform/PanelWindow.h"
#include "platform/x11/BlurEffect.h"
#include "platform/x11/ForeignCover.h"
#include "platform/x11/InputFocus.h"
#include "platform/x11/ManagerSelection.h"
#include "platform/x11/X11Screens.h"

#include <QObject>

#include <xcb/shape.h>

#include <optional>
#include <vector>

class QWindow;

namespace ravelo::x11 {

/// A window that the window manager leaves alone (override-redirect): the only kind that every one
/// of them lets lie above bars and above a focused full-screen window. What it asks of the X server
/// about its own window goes through Qt's connection, so that it stays in order with Qt's requests.
class X11PanelWindow : public PanelWindow, private QObject {
public:
    /// All must outlive it; `window` must not have been shown. Makes the native window.
    X11PanelWindow(QWindow& window, Connection& connection, Events& events,
                   const X11Screens& screens, ManagerSelection& compositor, ForeignCover& cover);

    void place(const Screen& screen, QSizeF size) override;
    void orderFront() override;
    void orderOut() override;
    void setOutline(const QPainterPath& outline) override;
    [[nodiscard]] ShowThrough showThrough() const override;
    [[nodiscard]] Handle onShowThroughChange(std::function<void()> callback) override;
    void requestFocus() override;
    void returnFocus() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void stayAbove(const xcb_generic_event_t& event);
    void prepareNativeWindow();
    void applyOutline();
    void setShape(xcb_shape_kind_t kind, const std::vector<xcb_rectangle_t>& rectangles);
    void setCardinals(xcb_atom_t property, const std::vector<uint32_t>& values);

    QWindow& window_;
    const X11Screens& screens_;
    ManagerSelection& compositor_;
    ForeignCover& cover_;
    InputFocus focus_;
    const xcb_atom_t shadow_;
    const xcb_atom_t skipCloseAnimation_;
    BlurEffect blur_;
    Listeners<> showThroughListeners_;
    std::optional<QPainterPath> outline_;
    double scale_ = 1;     ///< Device pixels in a logical one, where the window was placed last.
    xcb_connection_t* qt_; ///< Qt's own connection.
    xcb_window_t id_ = XCB_WINDOW_NONE;
    const std::vector<xcb_atom_t> restackingNotices_;
    Handle compositorSubscription_;
    Handle blurSubscription_;
    Handle eventSubscription_;
};

} // namespace ravelo::x11
