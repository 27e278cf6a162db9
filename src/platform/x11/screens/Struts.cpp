#include "platform/x11/screens/Struts.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

// No X window reaches further; a cardinal may hold anything.
constexpr uint32_t furthest = 0xffff;

int bounded(uint32_t cardinal) {
    return static_cast<int>(std::min(cardinal, furthest));
}

/// A stretch of one axis, `end` lying behind its last pixel.
struct Range {
    int begin;
    int end;
};

bool meets(const Strut::Edge& edge, Range along) {
    return edge.depth > 0 && edge.first < along.end && edge.last >= along.begin;
}

/// Whether the strut's inner edge at `position` cuts the monitor's stretch.
bool cuts(int position, Range across) {
    return position > across.begin && position < across.end;
}

/// What two opposite edges of the root, `rootLength` apart, leave of `across`.
void reserve(Range& free, Range across, Range along, int rootLength, const Strut::Edge& near,
             const Strut::Edge& far) {
    if (meets(near, along) && cuts(near.depth, across)) {
        free.begin = std::max(free.begin, near.depth);
    }
    if (meets(far, along) && cuts(rootLength - far.depth, across)) {
        free.end = std::min(free.end, rootLength - far.depth);
    }
}

} // namespace

std::optional<Strut> parseStrut(std::span<const uint32_t> cardinals) {
    if (cardinals.size() != 4 && cardinals.size() != 12) {
        return std::nullopt;
    }
    const auto edge = [&](size_t index) {
        if (cardinals.size() == 4) {
            return Strut::Edge{bounded(cardinals[index]), 0, bounded(furthest)};
        }
        return Strut::Edge{bounded(cardinals[index]), bounded(cardinals[4 + 2 * index]),
                           bounded(cardinals[5 + 2 * index])};
    };
    return Strut{edge(0), edge(1), edge(2), edge(3)};
}

QRect withoutStruts(QRect monitor, QSize root, const std::vector<Strut>& struts) {
    const Range columns{monitor.x(), monitor.x() + monitor.width()};
    const Range rows{monitor.y(), monitor.y() + monitor.height()};
    Range freeColumns = columns;
    Range freeRows = rows;
    for (const Strut& strut : struts) {
        reserve(freeColumns, columns, rows, root.width(), strut.left, strut.right);
        reserve(freeRows, rows, columns, root.height(), strut.top, strut.bottom);
    }
    const QRect free(freeColumns.begin, freeRows.begin, freeColumns.end - freeColumns.begin,
                     freeRows.end - freeRows.begin);
    return free.isEmpty() ? monitor : free;
}

} // namespace ravelo::x11
