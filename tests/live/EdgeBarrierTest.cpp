#include "live/support/Clients.h"
#include "platform/x11/RawInput.h"
#include "platform/x11/X11EdgeBarrier.h"

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

class Crossing : public testing::TestWithParam<CrossingCase> {
protected:
    /// Where a hand's motion takes the pointer.
    QPoint moved() {
        const auto [name, from, motion, arrives] = GetParam();
        live::Client hand(u"xdotool"_s,
                          {u"mousemove"_s, QString::number(from.x()), QString::number(from.y()),
                           u"mousemove_relative"_s, u"--"_s, QString::number(motion.x()),
                           QString::number(motion.y())});
        static_cast<void>(hand.finish());
        return look(*connection_).value().location;
    }

    std::unique_ptr<Connection> connection_ = std::move(Connection::create().value());
    X11EdgeBarrier barrier_{*connection_, [](QPointF place) {
                                return place.toPoint();
                            }};
};

TEST_P(Crossing, isHeldFromBelowOnly) {
    ASSERT_TRUE(barrier_.isTrusted());
    auto held = barrier_.hold({100, 10, 400, 10});
    ASSERT_TRUE(held) << qPrintable(held.error().message);
    EXPECT_EQ(moved(), GetParam().arrives);
    held->reset();
    EXPECT_EQ(moved(), GetParam().from + GetParam().motion) << "held by a barrier that is gone";
}

INSTANTIATE_TEST_SUITE_P(Ways, Crossing,
                         testing::Values(CrossingCase{"upwards", {300, 50}, {0, -45}, {300, 10}},
                                         CrossingCase{"toTheLine", {300, 50}, {0, -40}, {300, 10}},
                                         CrossingCase{"downwards", {300, 3}, {0, 30}, {300, 33}},
                                         CrossingCase{"beside", {450, 50}, {0, -45}, {450, 5}}),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ravelo::x11
