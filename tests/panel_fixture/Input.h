#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QWheelEvent>

#include <functional>

namespace ravelo {

/// The first item with this name below `under`, or null.
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

/// Presses and releases a key. `text` is what it types.
inline void press(QQuickWindow& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&window, &event);
    }
}

/// Presses several keys: "Down Ctrl+P x Return". A single character types itself.
inline void pressKeys(QQuickWindow& window, const QString& keys) {
    for (const QString& name : keys.split(QChar(u' '), Qt::SkipEmptyParts)) {
        const QKeyCombination key = QKeySequence::fromString(name)[0];
        press(window, key.key(), key.keyboardModifiers(), name.size() == 1 ? name : QString());
    }
}

/// Turns the wheel by eighths of a degree; positive scrolls up.
inline void turnWheel(QQuickWindow& window, QPointF place, int angle) {
    QWheelEvent event(place, window.mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &event);
}

inline void clickMiddle(QQuickWindow& window, const QQuickItem* item,
                        Qt::MouseButton button = Qt::LeftButton) {
    click(window, item->mapToScene(item->boundingRect().center()), button);
}

} // namespace ravelo
