#pragma once

#include "ui/paint/PaintedItem.h"

#include <QColor>
#include <QImage>

namespace ravelo {

/// The soft shadow of a rounded rectangle of this size, painted around it only.
class Shadow : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed) ///< Corner radius of the rectangle.
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)     ///< Twice sigma, as in CSS.
    Q_PROPERTY(double drop MEMBER drop_ NOTIFY changed)     ///< Vertical offset.

public:
    using PaintedItem::PaintedItem;

protected:
    [[nodiscard]] QRectF paintedRect() const override;
    void paint(QPainter& painter) override;

private:
    /// What the cached image was made for.
    struct Look {
        QSizeF size;
        double scale = 1; ///< Device pixels per logical pixel.
        double margin = 0;
        QColor color;
        double radius = 0;
        double blur = 0;

        friend bool operator==(const Look&, const Look&) = default;
    };

    static QImage image(const Look& look);
    [[nodiscard]] double margin() const;

    QColor color_ = Qt::black;
    double radius_ = 0;
    double blur_ = 0;
    double drop_ = 0;
    Look look_;
    QImage image_;
};

} // namespace ravelo
