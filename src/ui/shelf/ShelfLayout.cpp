#include "ui/shelf/ShelfLayout.h"

#include <algorithm>
#include <cmath>

namespace ravelo {

namespace {

constexpr QSizeF tile(101, 108);
constexpr double trayPad = 4;
constexpr double tileGap = 2;
constexpr double trayGap = 8;

double along(qsizetype count, double size) {
    return static_cast<double>(count) * (size + tileGap) - tileGap;
}

qsizetype tilesInALine(double width) {
    const double room = width - 2 * trayPad + tileGap;
    return std::max<qsizetype>(1, static_cast<qsizetype>(room / (tile.width() + tileGap)));
}

} // namespace

ShelfLayout::ShelfLayout(const QList<qsizetype>& stackSizes, double width) {
    const qsizetype maxColumns = tilesInALine(width);
    QPointF corner;
    for (const qsizetype count : stackSizes) {
        const qsizetype columns = std::min(count, maxColumns);
        const qsizetype lines = (count + maxColumns - 1) / maxColumns;
        const QSizeF size(along(columns, tile.width()) + 2 * trayPad,
                          along(lines, tile.height()) + 2 * trayPad);
        if (corner.x() > 0 && corner.x() + size.width() > width) {
            corner = {0, height + trayGap};
        }
        const QRectF tray(corner, size);
        for (qsizetype i = 0; i < count; ++i) {
            const qsizetype column = i % maxColumns;
            const qsizetype line = i / maxColumns;
            const QPointF place(double(column) * (tile.width() + tileGap),
                                double(line) * (tile.height() + tileGap));
            tiles.append(QRectF(tray.topLeft() + QPointF(trayPad, trayPad) + place, tile));
        }
        trays.append(tray);
        height = std::max(height, tray.bottom());
        corner.rx() = tray.right() + trayGap;
    }
}

int ShelfLayout::above(int from) const {
    return nearestInNextLine(from, -1);
}

int ShelfLayout::below(int from) const {
    return nearestInNextLine(from, 1);
}

int ShelfLayout::nearestInNextLine(int from, int step) const {
    const auto inRange = [this](int index) {
        return index >= 0 && index < tiles.size();
    };
    int next = from;
    while (inRange(next) && tiles[next].y() == tiles[from].y()) {
        next += step;
    }
    if (!inRange(next)) {
        return from;
    }
    int nearest = next;
    for (int one = next; inRange(one) && tiles[one].y() == tiles[next].y(); one += step) {
        const auto away = [&](int index) {
            return std::abs(tiles[index].x() - tiles[from].x());
        };
        nearest = away(one) < away(nearest) ? one : nearest;
    }
    return nearest;
}

} // namespace ravelo
