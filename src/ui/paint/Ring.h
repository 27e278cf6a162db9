#pragma once

#include "ui/paint/PaintedItem.h"

#include <QColor>

namespace ravelo {

/// A ring with a highlighted part, clockwise from the top.
class Ring : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double fraction MEMBER fraction_ NOTIFY changed) ///< 0 to 1.
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(QColor trackColor MEMBER trackColor_ NOTIFY changed)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY changed)

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    void paintWhole(QPainter& painter) const;

    double fraction_ = 0;
    QColor color_ = Qt::white;
    QColor trackColor_ = Qt::transparent;
    double lineWidth_ = 1;
};

} // namespace ravelo
