#include "ui/Ring.h"

#include "ui/PaintNode.h"

namespace ravelo {

namespace {

class RingNode final : public PaintNode {
public:
    using PaintNode::PaintNode;

    void set(const QRectF& rect, const QPen& track, const QPen& part, double fraction) {
        track_ = track;
        part_ = part;
        fraction_ = fraction;
        changed(rect);
    }

protected:
    void paint(QPainter& painter) override {
        constexpr double degree = 16; // Angles are given in parts of it, against the clock.
        const double inset = track_.widthF() / 2;
        const QRectF circle = rect().adjusted(inset, inset, -inset, -inset);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(track_);
        painter.drawEllipse(circle);
        if (fraction_ > 0) {
            painter.setPen(part_);
            painter.drawArc(circle, qRound(90 * degree), qRound(-fraction_ * 360 * degree));
        }
    }

private:
    QPen track_;
    QPen part_;
    double fraction_ = 0;
};

} // namespace

Ring::Ring(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &Ring::changed, this, &QQuickItem::update);
}

QSGNode* Ring::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    auto* node = old == nullptr ? new RingNode(window()) : static_cast<RingNode*>(old);
    node->set(boundingRect(), QPen(trackColor_, lineWidth_),
              QPen(color_, lineWidth_, Qt::SolidLine, Qt::RoundCap), fraction_);
    return node;
}

} // namespace ravelo
