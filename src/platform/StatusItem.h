#pragma once

#include <QColor>
#include <QKeySequence>
#include <QList>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

namespace ravelo {

/// An icon with a menu and a tooltip in the bar of the desktop, if it has one. Main thread.
class StatusItem {
public:
    /// Without a title it is a separator.
    struct Row {
        QString title;
        QKeySequence keys; ///< Shown to the user; the item itself does not handle them.
        std::function<void()> action;
        QList<Row> rows = {}; ///< Opens these instead of an action.
    };

    /// Draws the icon in one colour, `size` pixels large at the painter's origin.
    using Draw = std::function<void(QPainter& painter, QSizeF size, const QColor& foreground)>;

    struct Icon {
        Draw draw;
        QString name; ///< Of the same in the desktop's icon theme; empty if there is none.
    };

    virtual ~StatusItem() = default;

    /// Once. A click on the icon itself does what the first row does.
    virtual void show(Icon icon, QList<Row> menu) = 0;

    /// After `show`.
    virtual void replace(Icon icon, QList<Row> menu) = 0;

    virtual void setToolTip(const QString& text) = 0;
};

} // namespace ravelo
