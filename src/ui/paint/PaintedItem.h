#pragma once

#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>

namespace ravelo {

/// Paints directly into the window, antialiased and at fractional positions, which the software
/// scene graph's rectangles cannot do. Works only there: it paints on the main thread. Derived
/// classes name it in full, or qmllint does not find it.
class PaintedItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PaintedItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    /// Needs a repaint.
    void changed();

protected:
    /// Bounds of what `paint` touches, in item coordinates. Nothing is painted if empty.
    [[nodiscard]] virtual QRectF paintedRect() const { return boundingRect(); }

    /// In item coordinates; clip and opacity are set.
    virtual void paint(QPainter& painter) = 0;

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) final;

private:
    class Node;
};

} // namespace ravelo
