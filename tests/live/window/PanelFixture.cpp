#include "live/window/PanelFixture.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace ravelo::live {

void RecordingWindow::mousePressEvent(QMouseEvent* /*event*/) {
    ++presses;
}

void RecordingWindow::keyPressEvent(QKeyEvent* event) {
    typed += event->text();
}

PanelFixture::PanelFixture()
    : connection(std::move(x11::Connection::create().value())),
      events(*connection),
      inputFocus(*connection, events),
      screens(*connection, events),
      compositor(*connection, events, x11::ManagerSelection::compositor),
      listener(std::move(x11::Listener::create().value())),
      cover(*listener),
      drags(*listener),
      panel(window, *connection, events, screens, compositor, cover, drags, inputFocus) {
    listener->start();
}

void PanelFixture::show(const QString& monitor, QSizeF size) {
    const x11::Monitor* place = screens.monitor(monitor);
    ASSERT_NE(place, nullptr) << "there is no " << qPrintable(monitor);
    panel.place(place->screen, size);
    panel.orderFront();
    const QRect expected = topCentre(*place, size);
    ASSERT_TRUE(eventually([&] {
        return server.isViewable(id()) && server.geometry(id()) == expected;
    })) << "the panel is not shown in its place";
}

xcb_window_t PanelFixture::focus() {
    const x11::Owned<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection->get(), xcb_get_input_focus(connection->get()), nullptr));
    return reply->focus;
}

QRect topCentre(const x11::Monitor& monitor, QSizeF size) {
    const QSize native = (size * monitor.scale).toSize();
    return {monitor.native.x() + (monitor.native.width() - native.width()) / 2, monitor.native.y(),
            native.width(), native.height()};
}

} // namespace ravelo::live
