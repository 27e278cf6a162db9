#include "platform/x11/screens/Monitors.h"
#include "platform/x11/screens/Struts.h"
#include "platform/x11/window/X11PanelWindow.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ravelo::x11 {

namespace {

constexpr QRect upper(0, 0, 1920, 1080);
constexpr QRect right(1920, 0, 1280, 1024);
constexpr QRect below(0, 1080, 1280, 800);
constexpr QSize root(3200, 1880);

const std::vector<uint32_t> topOfUpper = {0, 0, 30, 0, 0, 0, 0, 0, 0, 1919, 0, 0};
const std::vector<uint32_t> topOfRight = {0, 0, 24, 0, 0, 0, 0, 0, 1920, 3199, 0, 0};
const std::vector<uint32_t> topOfBelow = {0, 0, 1110, 0, 0, 0, 0, 0, 0, 1279, 0, 0};
const std::vector<uint32_t> bottomOfRight = {0, 0, 0, 896, 0, 0, 0, 0, 0, 0, 1920, 3199};
const std::vector<uint32_t> leftOfRight = {1960, 0, 0, 0, 0, 1023, 0, 0, 0, 0, 0, 0};
const std::vector<uint32_t> rightOfUpper = {0, 1340, 0, 0, 0, 0, 0, 1079, 0, 0, 0, 0};

TEST(Struts, ReserveOnTheMonitorThatTheyReach) {
    struct Case {
        const char* name;
        std::vector<std::vector<uint32_t>> struts; ///< As the cardinals of their properties.
        QRect monitor;
        QRect free;
    };

    const Case cases[] = {
        {"nothing", {}, upper, upper},
        {"top", {topOfUpper}, upper, {0, 30, 1920, 1050}},
        {"top of another beside", {topOfUpper}, right, right},
        {"top of another above", {topOfUpper}, below, below},
        {"top, not the first", {topOfRight}, right, {1920, 24, 1280, 1000}},
        {"top at an inner edge", {topOfBelow}, below, {0, 1110, 1280, 770}},
        {"through another monitor", {topOfBelow}, upper, upper},
        {"bottom above the root's", {bottomOfRight}, right, {1920, 0, 1280, 984}},
        {"left at an inner edge", {leftOfRight}, right, {1960, 0, 1240, 1024}},
        {"right at an inner edge", {rightOfUpper}, upper, {0, 0, 1860, 1080}},
        {"the deepest counts",
         {topOfUpper, {0, 0, 50, 0, 0, 0, 0, 0, 100, 200, 0, 0}, topOfRight},
         upper,
         {0, 50, 1920, 1030}},
        {"old form, whole edges", {{0, 0, 20, 0}}, right, {1920, 20, 1280, 1004}},
        {"not of a strut's length", {{0, 0, 20}}, right, right},
        {"beyond all bounds",
         {{0, 0, 0xffffffff, 0xffffffff, 0, 0, 0, 0, 0, 0xffffffff, 0, 0xffffffff}},
         upper,
         upper},
        {"nothing left", {{0, 0, 700, 0}, {0, 0, 0, 1300}}, upper, upper}};
    for (const Case& c : cases) {
        std::vector<Strut> struts;
        for (const auto& cardinals : c.struts) {
            if (const auto strut = parseStrut(cardinals)) {
                struts.push_back(*strut);
            }
        }
        EXPECT_EQ(withoutStruts(c.monitor, root, struts), c.free) << c.name;
    }
}

TEST(Points, AreTheSameInBothSystems) {
    const auto monitor = [](QRect native, double scale) {
        Monitor made;
        made.native = native;
        made.screen.frame = QRectF(native.topLeft(), QSizeF(native.size()) / scale);
        made.scale = scale;
        return made;
    };
    const std::vector<Monitor> monitors = {monitor({0, 0, 1920, 1080}, 1),
                                           monitor({1920, 0, 3840, 2160}, 2)};
    const std::pair<QPoint, QPointF> cases[] = {{{0, 0}, {0, 0}},
                                                {{1919, 1079}, {1919, 1079}},
                                                {{1920, 0}, {1920, 0}},
                                                {{1923, 2001}, {1921.5, 1000.5}},
                                                {{5759, 2159}, {3839.5, 1079.5}},
                                                {{-5, 40}, {-5, 40}}};
    for (const auto& [native, logical] : cases) {
        EXPECT_EQ(toLogical(monitors, native), logical) << native.x();
        EXPECT_EQ(toNative(monitors, logical), native) << native.x();
    }
}

/// A triangle that points down, 20 wide and 10 high.
TEST(OutlineRegion, CoversThePixelsInside) {
    QPainterPath outline;
    outline.addPolygon(QPolygonF({QPointF(0, 0), QPointF(20, 0), QPointF(10, 10)}));
    outline.closeSubpath();
    const std::tuple<double, QPoint, bool> cases[] = {
        {1, {0, 0}, true},  {1, {19, 0}, true},   {1, {20, 0}, false},  {1, {2, 4}, false},
        {1, {10, 9}, true}, {1, {10, 10}, false}, {1.5, {29, 0}, true}, {1.5, {15, 14}, true},
        {2, {39, 0}, true}, {2, {5, 9}, false},   {2, {20, 19}, true},  {2, {19, 20}, false}};
    for (const auto& [scale, pixel, covered] : cases) {
        EXPECT_EQ(outlineRegion(outline, scale).contains(pixel), covered)
            << pixel.x() << "," << pixel.y() << " at scale " << scale;
    }
}

} // namespace

} // namespace ravelo::x11
