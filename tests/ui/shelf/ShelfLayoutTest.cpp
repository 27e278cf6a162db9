#include "ui/shelf/ShelfLayout.h"

#include <gtest/gtest.h>

namespace ravelo {

TEST(Layout, placesTraysSideBySideAndWrapsLongOnes) {
    struct Case {
        const char* name;
        QList<qsizetype> stacks;
        double width;
        QList<QRectF> trays;
        QList<QPointF> lastTiles; ///< Of each stack.
    };

    const Case cases[] = {
        {"none", {}, 859, {}, {}},
        {"side by side",
         {3, 2, 3, 1},
         859,
         {{0, 0, 315, 116}, {323, 0, 212, 116}, {543, 0, 315, 116}, {0, 124, 109, 116}},
         {{210, 4}, {430, 4}, {753, 4}, {4, 128}}},
        {"wrapped",
         {1, 9, 1},
         859,
         {{0, 0, 109, 116}, {0, 124, 830, 226}, {0, 358, 109, 116}},
         {{4, 4}, {4, 238}, {4, 362}}},
        {"narrower than a tile", {2}, 50, {{0, 0, 109, 226}}, {{4, 114}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const ShelfLayout layout(c.stacks, c.width);
        EXPECT_EQ(layout.trays, c.trays);
        EXPECT_EQ(layout.height, c.trays.isEmpty() ? 0 : c.trays.last().bottom());
        qsizetype tiles = 0;
        for (qsizetype i = 0; i < c.stacks.size(); ++i) {
            tiles += c.stacks[i];
            EXPECT_EQ(layout.tiles[tiles - 1].topLeft(), c.lastTiles[i]);
        }
        EXPECT_EQ(layout.tiles.size(), tiles);
    }
}

} // namespace ravelo
