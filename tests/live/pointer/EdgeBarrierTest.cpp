#include "live/support/Clients.h"
#include "platform/x11/pointer/RawInput.h"
#include "platform/x11/pointer/X11EdgeBarrier.h"

#include <gtest/gtest.h>

namespace ravelo::x11 {
namespace {

using namespace Qt::StringLiterals;

void pointer(const QStringList& command) {
    static_cast<void>(live::Client(u"xdotool"_s, command).finish());
}

void warp(QPoint to) {
    pointer({u"mousemove"_s, QString::number(to.x()), QString::number(to.y())});
}

class EdgeBarrierTest : public testing::Test {
protected:
    /// Moves it like a hand and returns its position.
    QPoint moved(QPoint from, QPoint motion) {
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

TEST_F(EdgeBarrierTest, letsThePointerOnlyLeaveTheStrip) {
    struct Case {
        const char* name;
        QPoint from;
        QPoint motion;
        QPoint arrives;
    };

    const Case cases[] = {{"upwards", {300, 50}, {0, -45}, {300, 10}},
                          {"to the line", {300, 50}, {0, -40}, {300, 10}},
                          {"downwards", {300, 3}, {0, 30}, {300, 33}},
                          {"to the side", {150, 5}, {-99, 0}, {51, 5}},
                          {"beside", {450, 50}, {0, -45}, {450, 5}},
                          {"at the end", {400, 50}, {0, -45}, {400, 10}},
                          {"from the left", {50, 5}, {100, 0}, {99, 5}},
                          {"from the right", {450, 0}, {-99, 0}, {401, 0}},
                          {"along the line", {50, 10}, {100, 0}, {150, 10}},
                          {"below", {450, 10}, {-99, 0}, {351, 10}}};
    ASSERT_TRUE(barrier_.isTrusted());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto held = barrier_.hold({100, 0, 300, 10});
        ASSERT_TRUE(held) << qPrintable(held.error().message);
        EXPECT_EQ(moved(c.from, c.motion), c.arrives);
        held->reset();
        EXPECT_EQ(moved(c.from, c.motion), c.from + c.motion) << "held by a barrier that is gone";
    }
}

TEST_F(EdgeBarrierTest, movesAPointerInsideBelow) {
    const QRectF strip(100, 0, 300, 10);

    struct Case {
        const char* name;
        QRectF strip;
        QPoint from;
        QPoint arrives;
    };

    const Case cases[] = {{"middle", strip, {300, 4}, {300, 10}},
                          {"last row", strip, {300, 9}, {300, 10}},
                          {"below", strip, {300, 12}, {300, 12}},
                          {"left end", strip, {100, 4}, {100, 10}},
                          {"left of it", strip, {99, 4}, {99, 4}},
                          {"right end", strip, {400, 4}, {400, 10}},
                          {"right of it", strip, {401, 4}, {401, 4}},
                          {"narrow screen", {-50, 0, 5000, 10}, {300, 4}, {300, 10}}};
    for (const Case& c : cases) {
        warp(c.from);
        const auto held = barrier_.hold(c.strip);
        ASSERT_TRUE(held) << qPrintable(held.error().message);
        EXPECT_EQ(look(*connection_).value().location, c.arrives) << c.name;
    }
}

} // namespace
} // namespace ravelo::x11
