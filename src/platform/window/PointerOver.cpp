#include "platform/window/PointerOver.h"

#include <QEvent>
#include <QWindow>

#include <utility>

namespace ravelo {

PointerOver::PointerOver(QWindow& window) {
    window.installEventFilter(this);
}

bool PointerOver::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::DragEnter:
        set(true);
        break;
    case QEvent::Leave:
    case QEvent::DragLeave:
        set(false);
        break;
    default:
        break;
    }
    return false;
}

void PointerOver::set(bool over) {
    if (std::exchange(over_, over) != over) {
        listeners_.notify();
    }
}

} // namespace ravelo
