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
        changed(rect);
    }

protected:
    void paint(QPainter& painter) override { painter.fillPath(outline_, color_); }

private:
    QPainterPath outline_;
    QColor color_;
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
