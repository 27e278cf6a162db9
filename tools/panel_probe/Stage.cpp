#include "Stage.h"

#include "panel_fixture/Input.h"

#include <QElapsedTimer>
#include <QThread>

namespace ravelo {

void settle(Milliseconds time) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < time.count()) {
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
}

QQuickItem& Hand::item(const QString& path) const {
    QQuickItem* item = window_.contentItem();
    for (const QString& name : path.split(u'/')) {
        item = find(item, name);
        if (item == nullptr) {
            qFatal("there is no element \"%s\"", qPrintable(path));
        }
    }
    return *item;
}

QPointF Hand::middle(const QString& path) const {
    const QQuickItem& one = item(path);
    return one.mapToScene(one.boundingRect().center());
}

void Hand::point(QPointF place) {
    send(window_, QEvent::MouseMove, place);
}

void Hand::point(const QString& path) {
    point(middle(path));
}

void Hand::hold(const QString& path) {
    send(window_, QEvent::MouseButtonPress, middle(path));
}

void Hand::click(const QString& path, Qt::MouseButton button) {
    ravelo::click(window_, middle(path), button);
}

void Hand::scroll(QPointF place, int angle) {
    turnWheel(window_, place, angle);
}

void Hand::press(int key, Qt::KeyboardModifiers modifiers) {
    ravelo::press(window_, key, modifiers);
}

void Hand::type(const QString& text) {
    for (const QChar letter : text) {
        ravelo::press(window_, Qt::Key_unknown, Qt::NoModifier, letter);
    }
}

} // namespace ravelo
