#pragma once

#include <QDropEvent>
#include <QObject>

namespace ravelo {

/// For a window that only ever copies what is dropped on it. Qt lets no window accept an action
/// that the source did not name, and a source that was told of a move deletes what it gave; a copy
/// may always be answered (XDND 5). Installed as an event filter.
class CopyOnly final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* window, QEvent* event) override {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            Actions::setToCopy(static_cast<QDropEvent&>(*event));
            break;
        default:
            break;
        }
        return QObject::eventFilter(window, event);
    }

private:
    /// They are open to those who derive.
    struct Actions : QDropEvent {
        static void setToCopy(QDropEvent& drop) {
            drop.*& Actions::m_actions = Qt::CopyAction;
            drop.*& Actions::m_defaultAction = Qt::CopyAction;
            drop.*& Actions::m_dropAction = Qt::CopyAction;
        }
    };
};

} // namespace ravelo
