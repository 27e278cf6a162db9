#pragma once

#include <QColor>
#include <QQuickItem>

namespace ravelo {

/// The outline that hangs from the top edge of the screen, filled with one colour.
class NotchFill : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    Q_PROPERTY(double flare MEMBER flare_ NOTIFY changed)
    Q_PROPERTY(double bottomRadius MEMBER bottomRadius_ NOTIFY changed)

public:
    explicit NotchFill(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QColor color_;
    double flare_ = 0;
    double bottomRadius_ = 0;
};

} // namespace ravelo
