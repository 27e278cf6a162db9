#pragma once

#include "ui/paint/PaintedItem.h"

#include <QColor>

namespace ravelo {

/// A line with round ends from the item's bottom left to its top right.
class SlantedLine : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY changed)

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    QColor color_ = Qt::white;
    double lineWidth_ = 1;
};

} // namespace ravelo
