#pragma once

#include "base/Handle.h"
#include "platform/Screens.h"

#include <QPainterPath>
#include <QSizeF>

#include <functional>

namespace ravelo {

/// The one window at the top centre of a screen: above bars and full-screen windows, on all
/// workspaces, without decoration, out of the taskbar, taking no focus by itself. What it shows is
/// none of its business. Main thread.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// Hangs the window from the middle of the top edge of `screen` in this size (logical pixels).
    /// May take effect later.
    virtual void place(const Screen& screen, QSizeF size) = 0;

    /// Shows the window above all others, without giving it the focus.
    virtual void orderFront() = 0;

    /// Takes the window off the screen; it keeps its place and size.
    virtual void orderOut() = 0;

    /// The shape of what is shown, in the window's own logical pixels. Clicks outside it go to
    /// whatever lies below; the desktop may blur what is behind it; where the desktop cannot show
    /// transparent windows the window is cut to it.
    virtual void setOutline(const QPainterPath& outline) = 0;

    /// How what lies behind can show through; changes as compositors and their effects come and go.
    enum class ShowThrough { none, sharp, blurred };
    [[nodiscard]] virtual ShowThrough showThrough() const = 0;
    [[nodiscard]] virtual Handle onShowThroughChange(std::function<void()> callback) = 0;

    /// Asks for the keyboard. To be called while an input event to this window is handled; the
    /// focus may come later or never.
    virtual void requestFocus() = 0;

    /// Gives the keyboard back to the window that had it before `requestFocus`, unless the user
    /// has given it to another one meanwhile. Does nothing where we do not have it.
    virtual void returnFocus() = 0;
};

} // namespace ravelo
