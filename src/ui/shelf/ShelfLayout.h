#pragma once

#include <QList>
#include <QRectF>

namespace ravelo {

/// Positions of the parked files in logical pixels: one tile per file in shelf order, one tray per
/// stack. Trays stand side by side if they fit; a wider one wraps its tiles.
struct ShelfLayout {
    /// Within `width`; at least one tile per line.
    ShelfLayout(const QList<qsizetype>& stackSizes, double width);
    ShelfLayout() = default;

    /// The tile nearest to `from` in the line above or below; `from` if there is none.
    [[nodiscard]] int above(int from) const;
    [[nodiscard]] int below(int from) const;

    QList<QRectF> trays;
    QList<QRectF> tiles;
    double height = 0;

private:
    [[nodiscard]] int nearestInNextLine(int from, int step) const;
};

} // namespace ravelo
