#include "platform/x11/screens/Monitors.h"
#include "platform/x11/screens/Struts.h"
#include "platform/x11/window/X11PanelWindow.h"

#include <gtest/gtest.h>

#include <ostream>

namespace ravelo::x11 {

namespace {

constexpr QRect upper(0, 0, 1920, 1080);
constexpr QRect right(1920, 0, 1280, 1024);
constexpr QRect below(0, 1080, 1280, 800);
constexpr QSize root(3200, 1880);

struct StrutCase {
    const char* name;
    std::vector<std::vector<uint32_t>> struts; ///< As the cardinals of their properties.
    QRect monitor;
    QRect free;

    friend std::ostream& operator<<(std::ostream& out, const StrutCase& each) {
        return out << each.name;
    }
};

class StrutTest : public testing::TestWithParam<StrutCase> {};

TEST_P(StrutTest, ReservesOnTheMonitorThatItReaches) {
    std::vector<Strut> struts;
    for (const auto& cardinals : GetParam().struts) {
        if (const auto strut = parseStrut(cardinals)) {
            struts.push_back(*strut);
        }
    }
    const QRect free = withoutStruts(GetParam().monitor, root, struts);
    EXPECT_EQ(free, GetParam().free)
        << free.x() << "," << free.y() << " " << free.width() << "x" << free.height();
}

const std::vector<uint32_t> topOfUpper = {0, 0, 30, 0, 0, 0, 0, 0, 0, 1919, 0, 0};
const std::vector<uint32_t> topOfRight = {0, 0, 24, 0, 0, 0, 0, 0, 1920, 3199, 0, 0};
const std::vector<uint32_t> topOfBelow = {0, 0, 1110, 0, 0, 0, 0, 0, 0, 1279, 0, 0};
const std::vector<uint32_t> bottomOfRight = {0, 0, 0, 896, 0, 0, 0, 0, 0, 0, 1920, 3199};
const std::vector<uint32_t> leftOfRight = {1960, 0, 0, 0, 0, 1023, 0, 0, 0, 0, 0, 0};
const std::vector<uint32_t> rightOfUpper = {0, 1340, 0, 0, 0, 0, 0, 1079, 0, 0, 0, 0};

INSTANTIATE_TEST_SUITE_P(
    All, StrutTest,
    testing::Values(
        StrutCase{"nothing", {}, upper, upper},
        StrutCase{"top", {topOfUpper}, upper, {0, 30, 1920, 1050}},
        StrutCase{"top of another beside", {topOfUpper}, right, right},
        StrutCase{"top of another above", {topOfUpper}, below, below},
        StrutCase{"top, not the first", {topOfRight}, right, {1920, 24, 1280, 1000}},
        StrutCase{"top at an inner edge", {topOfBelow}, below, {0, 1110, 1280, 770}},
        StrutCase{"through another monitor", {topOfBelow}, upper, upper},
        StrutCase{"bottom above the root's", {bottomOfRight}, right, {1920, 0, 1280, 984}},
        StrutCase{"left at an inner edge", {leftOfRight}, right, {1960, 0, 1240, 1024}},
        StrutCase{"right at an inner edge", {rightOfUpper}, upper, {0, 0, 1860, 1080}},
        StrutCase{"the deepest counts",
                  {topOfUpper, {0, 0, 50, 0, 0, 0, 0, 0, 100, 200, 0, 0}, topOfRight},
                  upper,
                  {0, 50, 1920, 1030}},
        StrutCase{"old form, whole edges", {{0, 0, 20, 0}}, right, {1920, 20, 1280, 1004}},
        StrutCase{"not of a strut's length", {{0, 0, 20}}, right, right},
        StrutCase{"beyond all bounds",
                  {{0, 0, 0xffffffff, 0xffffffff, 0, 0, 0, 0, 0, 0xffffffff, 0, 0xffffffff}},
                  upper,
                  upper},
        StrutCase{"nothing left", {{0, 0, 700, 0}, {0, 0, 0, 1300}}, upper, upper}));

struct PointCase {
    QPoint native;
    QPointF logical;

    friend std::ostream& operator<<(std::ostream& out, const PointCase& each) {
        return out << each.native.x() << "," << each.native.y();
    }
};

class PointTest : public testing::TestWithParam<PointCase> {};

TEST_P(PointTest, IsTheSameInBothSystems) {
    const auto monitor = [](QRect native, double scale) {
        Monitor made;
        made.native = native;
        made.screen.frame = QRectF(native.topLeft(), QSizeF(native.size()) / scale);
        made.scale = scale;
        return made;
    };
    const std::vector<Monitor> monitors = {monitor({0, 0, 1920, 1080}, 1),
                                           monitor({1920, 0, 3840, 2160}, 2)};
    const auto [native, logical] = GetParam();
    EXPECT_EQ(toLogical(monitors, native), logical);
    EXPECT_EQ(toNative(monitors, logical), native);
}

INSTANTIATE_TEST_SUITE_P(
    All, PointTest,
    testing::Values(PointCase{{0, 0}, {0, 0}}, PointCase{{1919, 1079}, {1919, 1079}},
                    PointCase{{1920, 0}, {1920, 0}}, PointCase{{1923, 2001}, {1921.5, 1000.5}},
                    PointCase{{5759, 2159}, {3839.5, 1079.5}}, PointCase{{-5, 40}, {-5, 40}}));

struct PixelCase {
    double scale;
    QPoint pixel;
    bool covered;

    friend std::ostream& operator<<(std::ostream& out, const PixelCase& each) {
        return out << each.pixel.x() << "," << each.pixel.y() << " at scale " << each.scale;
    }
};

class OutlineRegionTest : public testing::TestWithParam<PixelCase> {};

/// A triangle that points down, 20 wide and 10 high.
TEST_P(OutlineRegionTest, CoversThePixelsInside) {
    QPainterPath outline;
    outline.addPolygon(QPolygonF({QPointF(0, 0), QPointF(20, 0), QPointF(10, 10)}));
    outline.closeSubpath();
    const auto [scale, pixel, covered] = GetParam();
    EXPECT_EQ(outlineRegion(outline, scale).contains(pixel), covered)
        << pixel.x() << "," << pixel.y() << " at scale " << scale;
}

INSTANTIATE_TEST_SUITE_P(All, OutlineRegionTest,
                         testing::Values(PixelCase{1, {0, 0}, true}, PixelCase{1, {19, 0}, true},
                                         PixelCase{1, {20, 0}, false}, PixelCase{1, {2, 4}, false},
                                         PixelCase{1, {10, 9}, true}, PixelCase{1, {10, 10}, false},
                                         PixelCase{1.5, {29, 0}, true},
                                         PixelCase{1.5, {15, 14}, true},
                                         PixelCase{2, {39, 0}, true}, PixelCase{2, {5, 9}, false},
                                         PixelCase{2, {20, 19}, true},
                                         PixelCase{2, {19, 20}, false}));

} // namespace

} // namespace ravelo::x11
