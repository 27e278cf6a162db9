#pragma once

#include <QColor>
#include <QFont>
#include <QQuickItem>

namespace ravelo {

/// A line of text whose digits all take the width of "0", so that it does not tremble as it counts.
/// (Qt 6.4 cannot ask a font for its tabular digits.)
class TabularText : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER text_ NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
    /// How far below the top its base line lies.
    Q_PROPERTY(double ascent MEMBER ascent_ NOTIFY changed)

public:
    explicit TabularText(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QString text_;
    QFont font_;
    QColor color_;
    double ascent_ = 0;
};

} // namespace ravelo
