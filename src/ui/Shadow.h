#pragma once

#include <QColor>
#include <QQuickItem>

namespace ravelo {

/// The soft shadow of a rounded rectangle of this item's size. Painted around it, never under it.
class Shadow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed) ///< Of the rectangle's corners.
    Q_PROPERTY(double blur MEMBER blur_ NOTIFY changed)     ///< Twice the deviation, as in CSS.
    Q_PROPERTY(double drop MEMBER drop_ NOTIFY changed)     ///< How far down it is cast.

public:
    explicit Shadow(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QColor color_ = Qt::black;
    double radius_ = 0;
    double blur_ = 0;
    double drop_ = 0;
};

} // namespace ravelo
