#pragma once

#include "platform/wayland/window/WaylandPanelWindow.h"
#include "wayland/WaylandSession.h"

#include <QPainter>
#include <QRasterWindow>

namespace ravelo::live {

/// Red where the panel is.
class RedWindow final : public QRasterWindow {
public:
    std::function<QRect()> panel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect({}, size()), Qt::transparent);
        painter.fillRect(panel(), Qt::red);
    }
};

/// A panel on sway.
struct PanelDesk {
    std::unique_ptr<wayland::WaylandDisplayServer> server = connectToSway();
    RedWindow window;
    std::unique_ptr<PanelWindow> panel = server->panelWindow(window);
    Hand hand;

    PanelDesk() {
        window.panel = [this] {
            return static_cast<wayland::WaylandPanelWindow&>(*panel).panelRect();
        };
    }

    /// The part of the outputs that is red, in the pixels of all of them.
    [[nodiscard]] static QRect redPart() {
        const QByteArray picture =
            output("grim", {QStringLiteral("-t"), QStringLiteral("ppm"), QStringLiteral("-")});
        const qsizetype start = picture.indexOf("\n255\n") + 5;
        const QByteArray header = picture.first(start);
        const int width = header.mid(header.indexOf('\n') + 1).split(' ').first().toInt();
        QRect red;
        for (qsizetype at = start; at + 2 < picture.size(); at += 3) {
            if (picture[at] == '\xff' && picture[at + 1] == 0) {
                const auto pixel = static_cast<int>((at - start) / 3);
                red |= QRect(pixel % width, pixel / width, 1, 1);
            }
        }
        return red;
    }
};

} // namespace ravelo::live
