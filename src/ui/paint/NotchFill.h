#pragma once

#include "ui/paint/PaintedItem.h"

#include <QColor>
#include <QImage>

namespace ravelo {

/// The notch outline filled with one colour.
class NotchFill : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double flare MEMBER flare_ NOTIFY changed)
    Q_PROPERTY(double bottomRadius MEMBER bottomRadius_ NOTIFY changed)

public:
    explicit NotchFill(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QColor color_;
    double flare_ = 0;
    double bottomRadius_ = 0;
    QImage image_; ///< Null if outdated.
};

} // namespace ravelo
