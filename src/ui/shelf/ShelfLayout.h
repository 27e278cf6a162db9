#pragma once

#include <QList>
#include <QRectF>

namespace ravelo {

/// Where the parked files stand, in logical pixels: a tile a file in the shelf's order, a tray
/// around those of each stack. Trays stand side by side while there is room; one that is wider than
/// that has several lines of tiles.
struct ShelfLayout {
    /// Within `width`; at least one tile a line.
    ShelfLayout(const QList<qsizetype>& stackSizes, double width);
    ShelfLayout() = default;

    /// The tile nearest to `from` in the line above or below; `from` where there is none.
    [[nodiscard]] int above(int from) const;
    [[nodiscard]] int below(int from) const;

    QList<QRectF> trays;
    QList<QRectF> tiles;
    double height = 0;

private:
    [[nodiscard]] int nearestInNextLine(int from, int step) const;
};

} // namespace ravelo
