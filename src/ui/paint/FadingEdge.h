#pragma once

#include "ui/paint/PaintedItem.h"

#include <QLinearGradient>

#include <memory>

namespace ravelo {

/// Fades its content out towards one edge, on any background. The software scene graph has no
/// masks, so the background is saved before the children are painted and blended back over them. No
/// child may be an opaque rectangle: the background under it is never painted.
class FadingEdge : public ravelo::PaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ravelo::FadingEdge::Edge edge MEMBER edge_ NOTIFY changed)
    /// Width of the fade in logical pixels; 0 for a hard edge.
    Q_PROPERTY(double length MEMBER length_ NOTIFY changed)

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Edge { Bottom, Right, Top };
    Q_ENUM(Edge)

    explicit FadingEdge(QQuickItem* parent = nullptr);

    /// The fading strip, in item coordinates.
    [[nodiscard]] QRectF strip() const;
    /// Opaque black where fully visible, transparent at the edge.
    [[nodiscard]] QLinearGradient mask() const;

protected:
    [[nodiscard]] QRectF paintedRect() const override { return strip(); }

    /// Paints nothing: saves the background of the strip.
    void paint(QPainter& painter) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    Edge edge_ = Bottom;
    double length_ = 0;
    std::shared_ptr<QImage> behind_; ///< In device pixels.
    QQuickItem* cover_;
};

} // namespace ravelo
