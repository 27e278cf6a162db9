#pragma once

#include "ui/paint/PaintedItem.h"

#include <QColor>

namespace ravelo {

/// A rounded rectangle with a solid or horizontal gradient fill and an inside outline.
class Box : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    /// Colour at the right end; invalid (the default) for a solid fill.
    Q_PROPERTY(QColor endColor MEMBER endColor_ NOTIFY changed)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed)
    Q_PROPERTY(QColor lineColor MEMBER lineColor_ NOTIFY changed)
    Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY changed)
    /// Length of the outline's dashes and gaps; 0 for a solid line.
    Q_PROPERTY(double dash MEMBER dash_ NOTIFY changed)

public:
    using PaintedItem::PaintedItem;

protected:
    void paint(QPainter& painter) override;

private:
    void paintRounded(QPainter& painter) const;
    void paintSides(QPainter& painter) const;
    [[nodiscard]] bool hasLine() const;
    [[nodiscard]] double shownRadius() const;
    [[nodiscard]] QBrush fill() const;
    [[nodiscard]] QPen pen() const;

    QColor color_ = Qt::transparent;
    QColor endColor_;
    QColor lineColor_ = Qt::transparent;
    double radius_ = 0;
    double lineWidth_ = 0;
    double dash_ = 0;
};

} // namespace ravelo
