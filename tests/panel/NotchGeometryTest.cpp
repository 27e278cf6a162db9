#include "panel/NotchGeometry.h"
#include "panel/NotchShape.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A screen whose bar takes `bar` pixels, with a notch of `notch` in its middle or none.
Screen screenWith(double bar, double notch) {
    Screen screen{u"s"_s, QRectF(0, 0, 1512, 982), QRectF(0, bar, 1512, 982 - bar), {}, {}};
    if (notch > 0) {
        const double side = (1512 - notch) / 2;
        screen.leftOfNotch = QRectF(0, 0, side, bar);
        screen.rightOfNotch = QRectF(side + notch, 0, side, bar);
    }
    return screen;
}

struct BarCase {
    const char* name;
    double bar;
    double notch;
    const char* kind;
    BarGeometry expected;
};

class BarGeometryTable : public testing::TestWithParam<BarCase> {};

TEST_P(BarGeometryTable, followsScreenAndDisplayKind) {
    const BarCase& row = GetParam();
    const BarGeometry bar =
        barGeometry(screenWith(row.bar, row.notch), QString::fromLatin1(row.kind));
    EXPECT_NEAR(bar.width, row.expected.width, 1e-9);
    EXPECT_NEAR(bar.height, row.expected.height, 1e-9);
    EXPECT_NEAR(bar.notch, row.expected.notch, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BarGeometryTable,
    testing::Values(BarCase{"plainScreen", 28, 0, "auto", {520, 28, 0}},
                    BarCase{"hiddenBar", 0, 0, "auto", {520, 24, 0}},
                    BarCase{"assumedNotch", 28, 0, "notch", {640, 28, 200}},
                    BarCase{"measuredNotch", 32, 200, "auto", {640, 32, 200}},
                    BarCase{"justFits", 32, 640.0 / 3, "auto", {640, 32, 640.0 / 3}},
                    BarCase{"wideNotch", 32, 220, "notch", {660, 32, 220}},
                    BarCase{"notchSwitchedOff", 32, 200, "none", {520, 32, 0}},
                    BarCase{"unknownKind", 32, 220, "sometimes", {660, 32, 220}}),
    [](const auto& row) { return row.param.name; });

struct ShapeCase {
    const char* name;
    QSizeF size;
    double flare;
    double radius;
    double bodyLeft; ///< Where the straight side stands.
    double sideEnd;  ///< Where it turns into the bottom corner.
};

class NotchShapeTable : public testing::TestWithParam<ShapeCase> {};

TEST_P(NotchShapeTable, keepsFlareAndCornersInTheBox) {
    const ShapeCase& row = GetParam();
    const QPainterPath path = notchShape(row.size, row.flare, row.radius);
    EXPECT_EQ(path.boundingRect(), QRectF(QPointF(0, 0), row.size));
    const bool hasBody = row.bodyLeft < row.size.width() / 2;
    const double side = row.sideEnd - 0.5;
    EXPECT_FALSE(path.contains(QPointF(row.bodyLeft - 0.1, side))) << "left of the straight side";
    EXPECT_EQ(path.contains(QPointF(row.bodyLeft + 0.1, side)), hasBody) << "right of it";
    const double corner = (row.sideEnd + row.size.height()) / 2;
    EXPECT_FALSE(path.contains(QPointF(row.bodyLeft + 0.1, corner))) << "under the round corner";
}

INSTANTIATE_TEST_SUITE_P(Boxes, NotchShapeTable,
                         testing::Values(ShapeCase{"panel", {927, 560}, 18, 42, 18, 518},
                                         ShapeCase{"flaresMeet", {20, 100}, 18, 42, 10, 100},
                                         ShapeCase{"shortBox", {927, 60}, 18, 42, 18, 30},
                                         ShapeCase{"narrowBody", {76, 560}, 18, 42, 18, 540}),
                         [](const auto& row) { return row.param.name; });

TEST(NotchShape, leavesTheCornersUnderTheFlaresFree) {
    const QPainterPath panel = panelOutline({927, 560});
    EXPECT_TRUE(panel.contains(QPointF(463, 280)));
    EXPECT_TRUE(panel.contains(QPointF(12, 1))) << "the flare reaches out along the edge";
    EXPECT_FALSE(panel.contains(QPointF(9, 30))) << "beside the body";
    EXPECT_FALSE(panel.contains(QPointF(20, 558))) << "the bottom corner is round";
}

TEST(Placement, hangsFromTheMiddleOfTheTopEdge) {
    const Screen second{
        u"2"_s, QRectF(1440, 120, 1920, 1080), QRectF(1440, 120, 1920, 1080), {}, {}};
    EXPECT_EQ(hangingFrame(second, handleSize), QRectF(2300, 120, 200, 12));
    EXPECT_EQ(hangingFrame(second, expandedSize(927, ShelfContent::none, second)),
              QRectF(1936.5, 120, 927, 560));
    EXPECT_EQ(hangingFrame(second, expandedSize(800, ShelfContent::files, second)),
              QRectF(2000, 120, 800, 700));
}

struct SizeCase {
    const char* name;
    QSizeF screen;
    QSizeF empty; ///< Of a panel 927 wide, with an empty shelf.
    QSizeF files; ///< With files on it.
    double bar;   ///< Width of the bar with an assumed notch.
};

class SizeTable : public testing::TestWithParam<SizeCase> {};

TEST_P(SizeTable, isSmallerThanItsScreen) {
    const SizeCase& row = GetParam();
    const Screen screen{u"s"_s, QRectF({1440, 0}, row.screen), {}, {}, {}};
    EXPECT_EQ(expandedSize(927, ShelfContent::none, screen), row.empty);
    EXPECT_EQ(expandedSize(927, ShelfContent::files, screen), row.files);
    EXPECT_EQ(barGeometry(screen, u"notch"_s).width, row.bar);
}

INSTANTIATE_TEST_SUITE_P(
    Screens, SizeTable,
    testing::Values(SizeCase{"least", {640, 400}, {620, 380}, {620, 380}, 620},
                    SizeCase{"small", {800, 480}, {780, 460}, {780, 460}, 640},
                    SizeCase{"twice1440", {720, 450}, {700, 430}, {700, 430}, 640},
                    SizeCase{"netbook", {1024, 600}, {927, 560}, {927, 580}, 640},
                    SizeCase{"laptop", {1366, 768}, {927, 560}, {927, 700}, 640},
                    SizeCase{"portrait", {1080, 1920}, {927, 560}, {927, 700}, 640},
                    SizeCase{"fraction", {910.7, 512.1}, {890, 492}, {890, 492}, 640}),
    [](const auto& row) { return row.param.name; });

TEST(ScreenChoice, takesTheScreenUnderThePointerElseTheMainOne) {
    const Screen left{u"left"_s, QRectF(0, 0, 1000, 800), {}, {}, {}};
    const Screen right{u"right"_s, QRectF(1000, 0, 1000, 800), {}, {}, {}};
    const std::vector<Screen> both{left, right};
    const std::vector<std::pair<std::optional<QPointF>, QString>> table = {
        {QPointF(999.5, 10), u"left"_s}, // the last column of the left one
        {QPointF(1000, 10), u"right"_s}, // the first of the right one
        {QPointF(500, 900), u"right"_s}, // between the screens: the main one
        {std::nullopt, u"right"_s},
    };
    for (const auto& [pointer, expected] : table) {
        const auto chosen = screenFor(pointer, both, right);
        ASSERT_TRUE(chosen);
        EXPECT_EQ(chosen->id, expected);
    }
    EXPECT_EQ(screenFor(QPointF(-5, -5), both, std::nullopt)->id, u"left"_s)
        << "without a main screen the first one counts";
    EXPECT_FALSE(screenFor(QPointF(5, 5), {}, std::nullopt)) << "no screen, no place";
}

} // namespace
} // namespace ravelo
