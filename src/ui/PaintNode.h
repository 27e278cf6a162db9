#pragma once

#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace ravelo {

/// Paints straight into the window, antialiased and at any fraction of a pixel, which the software
/// scene graph's own rectangles cannot. Only for that scene graph.
class PaintNode : public QSGRenderNode {
public:
    explicit PaintNode(QQuickWindow* window) : window_(window) {}

    [[nodiscard]] QRectF rect() const override { return rect_; }

    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }

    [[nodiscard]] StateFlags changedStates() const override { return {}; }

    void render(const RenderState* state) override {
        auto* resource = window_->rendererInterface()->getResource(
            window_, QSGRendererInterface::PainterResource);
        auto* painter = static_cast<QPainter*>(resource);
        // An empty region means "nothing to paint" here, not "no clip".
        if (painter == nullptr || state->clipRegion()->isEmpty()) {
            return;
        }
        painter->setClipRegion(*state->clipRegion(), Qt::ReplaceClip);
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        paint(*painter);
    }

protected:
    /// In the item's coordinates; clip and opacity are set.
    virtual void paint(QPainter& painter) = 0;

    /// Everything that is painted lies within; the node is painted anew.
    void changed(const QRectF& rect) {
        rect_ = rect;
        markDirty(DirtyMaterial | DirtyGeometry);
    }

private:
    QQuickWindow* window_;
    QRectF rect_;
};

} // namespace ravelo
