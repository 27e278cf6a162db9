#include "ui/paint/PaintedItem.h"

#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace ravelo {

/// The scene graph removes it before it renders the next frame without its item.
class PaintedItem::Node final : public QSGRenderNode {
public:
    explicit Node(PaintedItem& item) : item_(item) {}

    [[nodiscard]] QRectF rect() const override { return rect_; }

    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }

    [[nodiscard]] StateFlags changedStates() const override { return {}; }

    void render(const RenderState* state) override {
        QQuickWindow* window = item_.window();
        auto* resource =
            window->rendererInterface()->getResource(window, QSGRendererInterface::PainterResource);
        auto* painter = static_cast<QPainter*>(resource);
        // Here an empty region means "paint nothing", not "no clip".
        if (painter == nullptr || state->clipRegion()->isEmpty()) {
            return;
        }
        painter->setClipRegion(*state->clipRegion(), Qt::ReplaceClip);
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        item_.paint(*painter);
    }

    void changed(const QRectF& rect) {
        rect_ = rect;
        markDirty(DirtyMaterial | DirtyGeometry);
    }

private:
    PaintedItem& item_;
    QRectF rect_;
};

PaintedItem::PaintedItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &PaintedItem::changed, this, &QQuickItem::update);
}

QSGNode* PaintedItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    const QRectF rect = paintedRect();
    if (rect.isEmpty()) {
        delete old;
        return nullptr;
    }
    auto* node = old == nullptr ? new Node(*this) : static_cast<Node*>(old);
    node->changed(rect);
    return node;
}

} // namespace ravelo
