#include "platform/window/PointerOver.h"

#include <QEvent>
#include <QWindow>

namespace ravelo {

PointerOver::PointerOver(QWindow& window) {
    window.installEventFilter(this);
}

bool PointerOver::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
        set(true, dragged_);
        break;
    case QEvent::Leave:
        set(false, dragged_);
        break;
    case QEvent::DragEnter:
        set(hovered_, true);
        break;
    case QEvent::DragLeave:
        set(hovered_, false);
        break;
    case QEvent::Drop: // The pointer itself may enter before the drag ends, or later.
        set(true, false);
        break;
    default:
        break;
    }
    return false;
}

void PointerOver::set(bool hovered, bool dragged) {
    const bool before(*this);
    hovered_ = hovered;
    dragged_ = dragged;
    if (bool(*this) != before) {
        listeners_.notify();
    }
}

} // namespace ravelo
