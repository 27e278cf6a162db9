#include "live/support/Clients.h"
#include "platform/x11/pointer/RawInput.h"
#include "platform/x11/pointer/X11EdgeBarrier.h"

#include <gtest/gtest.h>

namespace ravelo::x11 {
namespace {

using namespace Qt::StringLiterals;

struct CrossingCase {
    const char* name;
    QPoint from;
    QPoint motion;
    QPoint arrives;
};

void pointer(const QStringList& command) {
    static_cast<void>(live::Client(u"xdotool"_s, command).finish());
}

void warp(QPoint to) {
    pointer({u"mousemove"_s, QString::number(to.x()), QString::number(to.y())});
}

class Crossing : public testing::TestWithParam<CrossingCase> {
protected:
    /// Where a hand's motion takes the pointer.
    QPoint moved() {
        const auto [name, from, motion, arrives] = GetParam();
        warp(from);
        pointer({u"mousemove_relative"_s, u"--"_s, QString::number(motion.x()),
                 QString::number(motion.y())});
        return look(*connection_).value().location;
    }

    std::unique_ptr<Connection> connection_ = std::move(Connection::create().value());
    X11EdgeBarrier barrier_{*connection_, [](QPointF place) {
                                return place.toPoint();
                            }};
};

TEST_P(Crossing, mayLeaveTheStripOnly) {
    ASSERT_TRUE(barrier_.isTrusted());
    auto held = barrier_.hold({100, 0, 300, 10});
    ASSERT_TRUE(held) << qPrintable(held.error().message);
    EXPECT_EQ(moved(), GetParam().arrives);
    held->reset();
    EXPECT_EQ(moved(), GetParam().from + GetParam().motion) << "held by a barrier that is gone";
}

INSTANTIATE_TEST_SUITE_P(Ways, Crossing,
                         testing::Values(CrossingCase{"upwards", {300, 50}, {0, -45}, {300, 10}},
                                         CrossingCase{"toTheLine", {300, 50}, {0, -40}, {300, 10}},
                                         CrossingCase{"downwards", {300, 3}, {0, 30}, {300, 33}},
                                         CrossingCase{"toTheSide", {150, 5}, {-99, 0}, {51, 5}},
                                         CrossingCase{"beside", {450, 50}, {0, -45}, {450, 5}},
                                         CrossingCase{"atTheEnd", {400, 50}, {0, -45}, {400, 10}},
                                         CrossingCase{"fromTheLeft", {50, 5}, {100, 0}, {99, 5}},
                                         CrossingCase{"fromTheRight", {450, 0}, {-99, 0}, {401, 0}},
                                         CrossingCase{
                                             "alongTheLine", {50, 10}, {100, 0}, {150, 10}},
                                         CrossingCase{"below", {450, 10}, {-99, 0}, {351, 10}}),
                         [](const auto& row) { return row.param.name; });

/// A strip as wide as the one around the middle of a screen of that width.
struct InsideCase {
    const char* name;
    QRectF strip;
    QPoint from;
    QPoint arrives;
};

class Inside : public testing::TestWithParam<InsideCase> {};

TEST_P(Inside, aPointerIsMovedBelow) {
    const auto connection = std::move(Connection::create().value());
    X11EdgeBarrier barrier(*connection, [](QPointF place) { return place.toPoint(); });
    const auto [name, strip, from, arrives] = GetParam();
    warp(from);
    const auto held = barrier.hold(strip);
    ASSERT_TRUE(held) << qPrintable(held.error().message);
    EXPECT_EQ(look(*connection).value().location, arrives);
}

INSTANTIATE_TEST_SUITE_P(
    Strips, Inside,
    testing::Values(InsideCase{"middle", {100, 0, 300, 10}, {300, 4}, {300, 10}},
                    InsideCase{"lastRow", {100, 0, 300, 10}, {300, 9}, {300, 10}},
                    InsideCase{"below", {100, 0, 300, 10}, {300, 12}, {300, 12}},
                    InsideCase{"leftEnd", {100, 0, 300, 10}, {100, 4}, {100, 10}},
                    InsideCase{"leftOfIt", {100, 0, 300, 10}, {99, 4}, {99, 4}},
                    InsideCase{"rightEnd", {100, 0, 300, 10}, {400, 4}, {400, 10}},
                    InsideCase{"rightOfIt", {100, 0, 300, 10}, {401, 4}, {401, 4}},
                    InsideCase{"narrowScreen", {-50, 0, 5000, 10}, {300, 4}, {300, 10}}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ravelo::x11
