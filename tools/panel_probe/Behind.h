#pragma once

#include "ui/windows/TitledWindow.h"

#include <QPainter>
#include <QQuickPaintedItem>

#include <cmath>

namespace ravelo {

/// The part of a screenshot behind the window. Painted in the window, because the offscreen
/// platform has no transparent windows.
class Behind : public QQuickPaintedItem {
public:
    Behind(QQuickWindow& window, const QString& file) : screen_(file) {
        setParentItem(window.contentItem());
        setZ(-1);
        setSize({2000, 2000});
        screen_.setDevicePixelRatio(window.devicePixelRatio());
    }

    void paint(QPainter* painter) override {
        const QSizeF beside = (screen_.deviceIndependentSize() - window()->size()) / 2;
        const bool inTheMiddle = qobject_cast<TitledWindow*>(window()) != nullptr;
        painter->drawImage(
            QPointF(-std::floor(beside.width()), inTheMiddle ? -std::floor(beside.height()) : 0),
            screen_);
    }

private:
    QImage screen_;
};

} // namespace ravelo
