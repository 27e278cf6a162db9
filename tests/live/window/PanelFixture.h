#pragma once

#include "live/support/Clients.h"
#include "live/window/OtherWindow.h"
#include "platform/x11/selection/X11DragMonitor.h"
#include "platform/x11/window/X11PanelWindow.h"

#include <QRasterWindow>

#include <gtest/gtest.h>

namespace ravelo::live {

/// What reaches the panel.
class RecordingWindow : public QRasterWindow {
public:
    int presses = 0;
    QString typed;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// A panel on the test server; scales are those of the environment.
class PanelFixture : public testing::Test {
public:
    PanelFixture();

    /// Places the panel on a monitor ("DUMMY0") and waits until the server shows it there.
    void show(const QString& monitor, QSizeF size);

    /// The focused window after all requests of the panel so far.
    [[nodiscard]] xcb_window_t focus();

    [[nodiscard]] xcb_window_t id() const { return static_cast<xcb_window_t>(window.winId()); }

    Server server;
    std::unique_ptr<x11::Connection> connection;
    x11::Events events;
    x11::InputFocus inputFocus;
    x11::X11Screens screens;
    x11::ManagerSelection compositor;
    std::unique_ptr<x11::Listener> listener;
    x11::ForeignCover cover;
    x11::X11DragMonitor drags;
    RecordingWindow window;
    x11::X11PanelWindow panel;
};

/// The place where the panel belongs, in the root's pixels.
[[nodiscard]] QRect topCentre(const x11::Monitor& monitor, QSizeF size);

} // namespace ravelo::live
