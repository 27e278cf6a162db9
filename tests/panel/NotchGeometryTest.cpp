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

TEST(Bar, followsScreenAndDisplayKind) {
    struct Case {
        const char* name;
        double bar;
        double notch;
        QString kind;
        BarGeometry expected;
    };

    const Case cases[] = {{"plain screen", 28, 0, u"auto"_s, {520, 28, 0}},
                          {"hidden bar", 0, 0, u"auto"_s, {520, 24, 0}},
                          {"assumed notch", 28, 0, u"notch"_s, {640, 28, 200}},
                          {"measured notch", 32, 200, u"auto"_s, {640, 32, 200}},
                          {"just fits", 32, 640.0 / 3, u"auto"_s, {640, 32, 640.0 / 3}},
                          {"wide notch", 32, 220, u"notch"_s, {660, 32, 220}},
                          {"notch switched off", 32, 200, u"none"_s, {520, 32, 0}},
                          {"unknown kind", 32, 220, u"sometimes"_s, {660, 32, 220}}};
    for (const Case& c : cases) {
        const BarGeometry bar = barGeometry(screenWith(c.bar, c.notch), c.kind);
        EXPECT_NEAR(bar.width, c.expected.width, 1e-9) << c.name;
        EXPECT_NEAR(bar.height, c.expected.height, 1e-9) << c.name;
        EXPECT_NEAR(bar.notch, c.expected.notch, 1e-9) << c.name;
    }
}

TEST(NotchShape, keepsFlareAndCornersInTheBox) {
    struct Case {
        const char* name;
        QSizeF size;
        double bodyLeft; ///< X of the straight side.
        double sideEnd;  ///< Y at which it turns into the bottom corner.
    };

    for (const Case& c : {Case{"panel", {927, 560}, 18, 518},
                          {"flares meet", {20, 100}, 10, 100},
                          {"short box", {927, 60}, 18, 30},
                          {"narrow body", {76, 560}, 18, 540}}) {
        SCOPED_TRACE(c.name);
        const QPainterPath path = notchShape(c.size, 18, 42);
        EXPECT_EQ(path.boundingRect(), QRectF(QPointF(0, 0), c.size));
        const bool hasBody = c.bodyLeft < c.size.width() / 2;
        const double side = c.sideEnd - 0.5;
        EXPECT_FALSE(path.contains(QPointF(c.bodyLeft - 0.1, side))) << "left of the straight side";
        EXPECT_EQ(path.contains(QPointF(c.bodyLeft + 0.1, side)), hasBody) << "right of it";
        const double corner = (c.sideEnd + c.size.height()) / 2;
        EXPECT_FALSE(path.contains(QPointF(c.bodyLeft + 0.1, corner))) << "under the round corner";
    }
}

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

TEST(ExpandedSize, isSmallerThanItsScreen) {
    struct Case {
        const char* name;
        QSizeF screen;
        QSizeF empty; ///< Of a panel 927 wide, with an empty shelf.
        QSizeF files; ///< With files on it.
        double bar;   ///< Width of the bar with an assumed notch.
    };

    const Case cases[] = {{"smallest", {640, 400}, {620, 380}, {620, 380}, 620},
                          {"small", {800, 480}, {780, 460}, {780, 460}, 640},
                          {"1440 at scale 2", {720, 450}, {700, 430}, {700, 430}, 640},
                          {"netbook", {1024, 600}, {927, 560}, {927, 580}, 640},
                          {"laptop", {1366, 768}, {927, 560}, {927, 700}, 640},
                          {"portrait", {1080, 1920}, {927, 560}, {927, 700}, 640},
                          {"fraction", {910.7, 512.1}, {890, 492}, {890, 492}, 640}};
    for (const Case& c : cases) {
        const Screen screen{u"s"_s, QRectF({1440, 0}, c.screen), {}, {}, {}};
        EXPECT_EQ(expandedSize(927, ShelfContent::none, screen), c.empty) << c.name;
        EXPECT_EQ(expandedSize(927, ShelfContent::files, screen), c.files) << c.name;
        EXPECT_EQ(barGeometry(screen, u"notch"_s).width, c.bar) << c.name;
    }
}

TEST(ScreenChoice, prefersTheScreenUnderThePointer) {
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
