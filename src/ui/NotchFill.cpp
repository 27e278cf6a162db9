#include "ui/NotchFill.h"

#include "panel/NotchShape.h"
#include "ui/PaintNode.h"

#include <QPainterPath>

namespace ravelo {

namespace {

class NotchFillNode final : public PaintNode {
public:
    using PaintNode::PaintNode;

    void set(const QPainterPath& outline, const QColor& color, const QRectF& rect) {
        outline_ = outline;
        color_ = color;
        image_ = {};
        changed(rect);
    }

protected:
    // Out of an image: the bar is painted once a second, and to fill an outline wakes several
    // threads each time.
    void paint(QPainter& painter) override {
        const double scale = painter.device()->devicePixelRatio();
        if (image_.isNull() || image_.devicePixelRatio() != scale) {
            image_ = QImage((rect().size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
            image_.setDevicePixelRatio(scale);
            image_.fill(Qt::transparent);
            QPainter filling(&image_);
            filling.setRenderHint(QPainter::Antialiasing);
            filling.fillPath(outline_, color_);
        }
        painter.drawImage(QPointF(0, 0), image_);
    }

private:
    QPainterPath outline_;
    QColor color_;
    QImage image_;
};

} // namespace

NotchFill::NotchFill(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &NotchFill::changed, this, &QQuickItem::update);
}

QSGNode* NotchFill::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    auto* node = old == nullptr ? new NotchFillNode(window()) : static_cast<NotchFillNode*>(old);
    node->set(notchShape(size(), flare_, bottomRadius_), color_, boundingRect());
    return node;
}

} // namespace ravelo
