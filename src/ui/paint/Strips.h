#pragma once

#include <QPainter>

#include <algorithm>

namespace ravelo {

/// Calls `draw` for one strip of `area` after the other, with the clip set to it: `rows` device
/// pixels high, or one logical pixel. Qt (6.4 at least) hands a path of about a hundred spans that
/// is not opaque to other threads and waits for them; waking them takes longer than painting.
template <typename Draw>
void inStrips(QPainter& painter, QRect area, int rows, const Draw& draw) {
    const int height = std::max(1, static_cast<int>(rows / painter.device()->devicePixelRatio()));
    for (int top = area.top(); top <= area.bottom(); top += height) {
        const QRect strip(area.left(), top, area.width(), height);
        painter.save();
        painter.setClipRect(strip & area, Qt::IntersectClip);
        draw();
        painter.restore();
    }
}

} // namespace ravelo
