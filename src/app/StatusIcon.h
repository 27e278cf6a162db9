#pragma once

#include <QColor>
#include <QSizeF>

class QPainter;

namespace ravelo {

/// Draws the program's sign, a panel at the top of a screen, as large as fits into `size`.
void drawStatusIcon(QPainter& painter, QSizeF size, const QColor& foreground);

/// The sign while capture is paused.
void drawPausedStatusIcon(QPainter& painter, QSizeF size, const QColor& foreground);

} // namespace ravelo
