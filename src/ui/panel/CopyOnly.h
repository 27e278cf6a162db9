#pragma once

#include <QDropEvent>
#include <QObject>

namespace ravelo {

/// Event filter for a window that accepts drops as copies only. Qt accepts no action that the
/// source did not offer, and a source that is answered "move" deletes its data; a copy is always
/// allowed (XDND 5).
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
    /// Accessible to derived classes only.
    struct Actions : QDropEvent {
        static void setToCopy(QDropEvent& drop) {
            drop.*& Actions::m_actions = Qt::CopyAction;
            drop.*& Actions::m_defaultAction = Qt::CopyAction;
            drop.*& Actions::m_dropAction = Qt::CopyAction;
        }
    };
};

} // namespace ravelo
