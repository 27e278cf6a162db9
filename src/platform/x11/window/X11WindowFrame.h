#pragma once

#include "platform/WindowFrame.h"
#include "platform/x11/connection/Connection.h"
#include "platform/x11/settings/ManagerSelection.h"

#include <QWindow>

namespace ravelo::x11 {

/// The shadow is left out of the window's input shape and named in _GTK_FRAME_EXTENTS, which many
/// window managers know; compositors are asked not to add their own.
class X11WindowFrame final : public WindowFrame {
public:
    /// All must outlive it. Makes the native window.
    X11WindowFrame(QWindow& window, Connection& connection, ManagerSelection& compositor);

    [[nodiscard]] bool isTranslucent() const override;
    [[nodiscard]] Handle onTranslucencyChange(std::function<void()> callback) override;
    void setRoom(QMargins room) override;

    void moveTo(QPoint corner) override { window_.setPosition(corner); }

private:
    QWindow& window_;
    ManagerSelection& compositor_;
    const xcb_atom_t extents_;
    const xcb_atom_t shadow_;
    xcb_connection_t* qt_; ///< Qt's own connection.
};

} // namespace ravelo::x11
