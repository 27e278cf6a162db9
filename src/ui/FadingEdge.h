#pragma once

#include <QLinearGradient>
#include <QQuickItem>

namespace ravelo {

/// Lets what it holds fade out towards one of its edges, whatever lies behind.
///
/// The software scene graph has no mask. So what lies behind is kept before the children are
/// painted, and blended back over them afterwards, the more the nearer to the edge. No child may be
/// an opaque rectangle: what it covers is never painted and so cannot be kept.
class FadingEdge : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Edge edge MEMBER edge_ NOTIFY changed)
    /// Logical pixels over which it fades; 0 for a hard edge.
    Q_PROPERTY(double length MEMBER length_ NOTIFY changed)

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum Edge { Bottom, Right, Top };
    Q_ENUM(Edge)

    explicit FadingEdge(QQuickItem* parent = nullptr);

    /// The strip that fades, in the item's coordinates.
    [[nodiscard]] QRectF strip() const;
    /// Opaque black where all is to be seen, transparent at the edge.
    [[nodiscard]] QLinearGradient mask() const;

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    Edge edge_ = Bottom;
    double length_ = 0;
    QQuickItem* cover_;
};

} // namespace ravelo
