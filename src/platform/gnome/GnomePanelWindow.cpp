#include "platform/gnome/GnomePanelWindow.h"

#include "platform/gnome/GnomeScreens.h"

#include <QMouseEvent>
#include <QPainterPath>
#include <QPolygonF>
#include <QRegion>
#include <QWindow>
#include <qpa/qplatformwindow.h>

#include <utility>

namespace ravelo::gnome {

GnomePanelWindow::GnomePanelWindow(QWindow& window, Services services, QSizeF handle)
    : window_(window),
      channel_(services.channel),
      drags_(services.drags),
      pasteboard_(services.pasteboard),
      handle_(handle),
      pointerOver_(window),
      ups_(channel_.onUpChange([this] {
          if (channel_.isUp()) {
              channel_.send(gnome::place(screen_));
          }
          apply();
      })) {
    window_.setFlags(Qt::Window | Qt::FramelessWindowHint);
    window_.setTitle(panelTitle);
    QSurfaceFormat format = window_.requestedFormat();
    format.setAlphaBufferSize(8);
    window_.setFormat(format);
    window_.installEventFilter(this);
    window_.create();
}

GnomePanelWindow::~GnomePanelWindow() {
    pasteboard_.onceWritten({});
}

void GnomePanelWindow::place(const Screen& screen, QSizeF size) {
    const std::size_t index = GnomeScreens::indexOf(screen);
    if (std::exchange(screen_, index) != index) {
        channel_.send(gnome::place(index));
    }
    size_ = size;
    apply();
}

void GnomePanelWindow::orderFront() {
    front_ = true;
    apply();
}

void GnomePanelWindow::orderOut() {
    front_ = false;
    apply();
}

void GnomePanelWindow::apply() {
    const bool shown = front_ && channel_.isUp() && size_.height() > handle_.height();
    if (shown) {
        const QSize size = size_.toSize();
        window_.setMinimumSize(size); // Else Mutter may tile it, or keep an earlier size.
        window_.setMaximumSize(size);
        window_.resize(size);
        // While the shell has not shown the last frame for 0.1 s, Qt keeps the size to itself.
        sizeUnsent_ = !window_.handle()->isExposed();
    }
    window_.setVisible(shown);
    if (!shown) {
        pointerOver_.leave();
    }
}

void GnomePanelWindow::setOutline(const QPainterPath& outline) {
    window_.setMask(QRegion(outline.toFillPolygon().toPolygon(), Qt::WindingFill));
}

void GnomePanelWindow::requestFocus(const QByteArray& /*activationToken*/) {
    pasteboard_.onceWritten({});
    channel_.send(gnome::focus(Focus::take));
}

// Not before Mutter has what was just copied: it takes it only from who has the focus, and this
// message may overtake it.
void GnomePanelWindow::returnFocus() {
    pasteboard_.onceWritten([this] { channel_.send(gnome::focus(Focus::giveBack)); });
}

bool GnomePanelWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Expose && window_.isExposed() &&
        std::exchange(sizeUnsent_, false)) {
        window_.handle()->setGeometry(window_.geometry());
    } else if (event->type() == QEvent::MouseButtonPress) {
        const auto button = static_cast<QMouseEvent*>(event)->button();
        if (button == Qt::LeftButton || button == Qt::RightButton) {
            pressListeners_.notify();
        }
    }
    return false;
}

} // namespace ravelo::gnome
