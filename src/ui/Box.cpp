#include "ui/Box.h"

#include "ui/PaintNode.h"

#include <algorithm>

namespace ravelo {

namespace {

struct BoxLook {
    QColor color;
    QColor endColor;
    QColor lineColor;
    double radius = 0;
    double lineWidth = 0;
    double dash = 0;
};

class BoxNode final : public PaintNode {
public:
    using PaintNode::PaintNode;

    void set(const QRectF& rect, const BoxLook& look) {
        look_ = look;
        changed(rect);
    }

protected:
    void paint(QPainter& painter) override {
        const double radius = std::min({look_.radius, rect().width() / 2, rect().height() / 2});
        if (look_.color.alpha() > 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill());
            painter.drawRoundedRect(rect(), radius, radius);
        }
        if (look_.lineWidth > 0 && look_.lineColor.alpha() > 0) {
            const double half = look_.lineWidth / 2;
            painter.setPen(pen());
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(rect().adjusted(half, half, -half, -half), radius - half,
                                    radius - half);
        }
    }

private:
    [[nodiscard]] QPen pen() const {
        QPen pen(look_.lineColor, look_.lineWidth);
        if (look_.dash > 0) {
            pen.setDashPattern({look_.dash / look_.lineWidth, look_.dash / look_.lineWidth});
            pen.setCapStyle(Qt::RoundCap);
        }
        return pen;
    }

    [[nodiscard]] QBrush fill() const {
        if (!look_.endColor.isValid()) {
            return look_.color;
        }
        QLinearGradient gradient(rect().topLeft(), rect().topRight());
        gradient.setColorAt(0, look_.color);
        gradient.setColorAt(1, look_.endColor);
        return gradient;
    }

    BoxLook look_;
};

} // namespace

Box::Box(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Box::changed, this, &QQuickItem::update);
}

QSGNode* Box::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    auto* node = old == nullptr ? new BoxNode(window()) : static_cast<BoxNode*>(old);
    node->set(boundingRect(), {color_, endColor_, lineColor_, radius_, lineWidth_, dash_});
    return node;
}

} // namespace ravelo
