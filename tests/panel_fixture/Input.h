#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>

#include <functional>

namespace ravelo {

/// The first element of that name below `under`, or nothing.
inline QQuickItem* find(const QQuickItem* under, const QString& name) {
    for (QQuickItem* child : under->childItems()) {
        if (child->objectName() == name) {
            return child;
        }
        if (QQuickItem* found = find(child, name)) {
            return found;
        }
    }
    return nullptr;
}

inline void send(QQuickWindow& window, QEvent::Type type, QPointF place,
                 Qt::MouseButton button = Qt::LeftButton) {
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, place, window.mapToGlobal(place), moves ? Qt::NoButton : button, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

inline void click(QQuickWindow& window, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    send(window, QEvent::MouseMove, place);
    send(window, QEvent::MouseButtonPress, place, button);
    send(window, QEvent::MouseButtonRelease, place, button);
}

/// A key goes down and up. `text` is what it types.
inline void press(QQuickWindow& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&window, &event);
    }
}

/// Several keys, one after the other, as in "Down Ctrl+P x Return". A single character types
/// itself.
inline void pressKeys(QQuickWindow& window, const QString& keys) {
    for (const QString& name : keys.split(QChar(u' '), Qt::SkipEmptyParts)) {
        const QKeyCombination key = QKeySequence::fromString(name)[0];
        press(window, key.key(), key.keyboardModifiers(), name.size() == 1 ? name : QString());
    }
}

/// Into the middle of what is in a window.
inline void clickMiddle(QQuickWindow& window, const QQuickItem* item,
                        Qt::MouseButton button = Qt::LeftButton) {
    click(window, item->mapToScene(item->boundingRect().center()), button);
}

} // namespace ravelo
