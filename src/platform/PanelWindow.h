#pragma once

#include "base/Handle.h"
#include "platform/Screens.h"

#include <QByteArray>
#include <QImage>
#include <QPainterPath>
#include <QSizeF>

#include <functional>
#include <memory>

namespace ravelo {

class DragOffer;

/// The one window at the top centre of a screen: above bars and full-screen windows, on all
/// workspaces, without decoration, not in the taskbar, taking no focus by itself. Knows nothing of
/// its contents. Main thread.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// Hangs the window from the middle of the top edge of `screen` in this size (logical pixels).
    /// May take effect later. Nobody else sets its position.
    virtual void place(const Screen& screen, QSizeF size) = 0;

    /// Shows the window above all others, without giving it the focus.
    virtual void orderFront() = 0;

    /// Hides the window; it keeps its place and size.
    virtual void orderOut() = 0;

    /// A picture of the whole window in device pixels, shown at once whenever the window takes that
    /// size, until its contents are drawn; replaces the previous one. Null for none. False if the
    /// display server cannot do that.
    virtual bool setFirstPicture(const QImage& /*picture*/) { return false; }

    /// The shape of the contents, in the window's own logical pixels. Clicks outside it go to
    /// whatever is below; the desktop may blur what is behind it; if the desktop cannot show
    /// transparent windows the window is cut to it.
    virtual void setOutline(const QPainterPath& outline) = 0;

    /// How much of what is behind shows through; changes as compositors and their effects come and
    /// go.
    enum class ShowThrough { none, sharp, blurred };
    [[nodiscard]] virtual ShowThrough showThrough() const = 0;
    [[nodiscard]] virtual Handle onShowThroughChange(std::function<void()> callback) = 0;

    /// Whether the pointer, or a drag, is over the window, as far as the window itself knows.
    [[nodiscard]] virtual bool isUnderPointer() const = 0;
    [[nodiscard]] virtual Handle onUnderPointerChange(std::function<void()> callback) = 0;

    /// What the drag offers that entered the window last; null if none has.
    [[nodiscard]] virtual std::shared_ptr<DragOffer> dragOffer() = 0;

    /// Asks for the keyboard. The focus may come later or never. `activationToken` proves that the
    /// user asked for it elsewhere (xdg-activation-v1, or a startup-notification ID); without one,
    /// call it while handling an input event to this window.
    virtual void requestFocus(const QByteArray& activationToken) = 0;

    /// Gives the keyboard back to the window that had it before `requestFocus`, unless the user
    /// has given it to another one since. Does nothing if we do not have it.
    virtual void returnFocus() = 0;
};

} // namespace ravelo
