#include "live/ListenerSession.h"

#include <ostream>

namespace ravelo::x11 {
namespace {

using live::Client;
using namespace Qt::StringLiterals;

class X11PointerTest : public testing::Test {
protected:
    X11PointerTest() {
        xdotool({u"mousemove"_s, u"300"_s, u"200"_s});
        static_cast<void>(pointer().state());
    }

    static void xdotool(const QStringList& arguments) {
        Client client(u"xdotool"_s, arguments);
        static_cast<void>(client.finish());
    }

    [[nodiscard]] X11Pointer& pointer() { return session_.pointer; }

    live::ListenerSession session_;
};

TEST_F(X11PointerTest, knowsWhereItIsAndWhetherAButtonIsDown) {
    EXPECT_EQ(pointer().state().location, QPointF(300, 200));
    EXPECT_FALSE(pointer().state().buttonDown);
    xdotool({u"mousedown"_s, u"1"_s});
    EXPECT_TRUE(pointer().state().buttonDown);
    EXPECT_TRUE(pointer().state().buttonDown) << "still held";
    xdotool({u"mouseup"_s, u"1"_s});
    EXPECT_TRUE(eventually([&] { return !pointer().state().buttonDown; }));
}

struct ActionCase {
    const char* name;
    QStringList action;
    QStringList calls; ///< The callbacks: "press", "wake".
    bool buttonDown;   ///< At the next look, when it is long over.

    friend void PrintTo(const ActionCase& tested, std::ostream* out) { *out << tested.name; }
};

class PointerAction : public X11PointerTest, public testing::WithParamInterface<ActionCase> {};

TEST_P(PointerAction, isReportedAsPressOrActivity) {
    QStringList calls;
    const Handle pressing = pointer().onPress([&](auto) { calls.append(u"press"_s); });
    const Handle waking = pointer().onNextActivity([&] { calls.append(u"wake"_s); });
    xdotool(GetParam().action);
    EXPECT_TRUE(eventually([&] { return calls == GetParam().calls; }))
        << qPrintable(calls.join(u' '));

    xdotool({u"click"_s, u"3"_s}); // Comes after all other results of the action.
    const QStringList expected = GetParam().calls + (GetParam().calls.contains(u"wake"_s)
                                                         ? QStringList{u"press"_s}
                                                         : QStringList{u"press"_s, u"wake"_s});
    EXPECT_TRUE(eventually([&] { return calls.size() >= expected.size(); }));
    EXPECT_EQ(calls, expected);
}

TEST_P(PointerAction, countsAsAPressUntilTheNextQuery) {
    bool awake = false;
    const Handle waking = pointer().onNextActivity([&] { awake = true; });
    xdotool(GetParam().action);
    xdotool({u"mousemove_relative"_s, u"5"_s, u"5"_s}); // Wakes at the latest, behind the action.
    ASSERT_TRUE(eventually([&] { return awake; }));
    EXPECT_EQ(pointer().state().buttonDown, GetParam().buttonDown);
    EXPECT_FALSE(pointer().state().buttonDown) << "reported twice";
}

INSTANTIATE_TEST_SUITE_P(
    Actions, PointerAction,
    testing::Values(
        ActionCase{"LeftClick", {u"click"_s, u"1"_s}, {u"press"_s, u"wake"_s}, true},
        ActionCase{"MiddleClick", {u"click"_s, u"2"_s}, {u"wake"_s}, true},
        ActionCase{"RightClick", {u"click"_s, u"3"_s}, {u"press"_s, u"wake"_s}, true},
        ActionCase{"WheelUp", {u"click"_s, u"4"_s}, {}, false},
        ActionCase{"WheelDown", {u"click"_s, u"5"_s}, {}, false},
        ActionCase{"SideButton", {u"click"_s, u"8"_s}, {}, false},
        ActionCase{"Motion", {u"mousemove_relative"_s, u"5"_s, u"5"_s}, {u"wake"_s}, false},
        // The second is reported even if the first follows the pointer's last motion immediately.
        ActionCase{"MovedByAProgram",
                   {u"mousemove"_s, u"30"_s, u"40"_s, u"sleep"_s, u"0.1"_s, u"mousemove"_s, u"31"_s,
                    u"40"_s},
                   {u"wake"_s},
                   false}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(X11PointerTest, reportsThePlaceOfAPressThatIsHeardLate) {
    std::vector<std::optional<QPointF>> places;
    const Handle pressing = pointer().onPress([&](auto place) { places.push_back(place); });
    ASSERT_TRUE(live::run(u"xdotool"_s, {u"click"_s, u"1"_s, u"sleep"_s, u"0.1"_s, u"mousemove"_s,
                                         u"30"_s, u"40"_s}));
    ASSERT_TRUE(eventually([&] { return !places.empty(); }));
    EXPECT_EQ(places, std::vector({std::optional(QPointF(300, 200))}));
}

TEST_F(X11PointerTest, wakesForAMoveJustBeforeTheRequest) {
    xdotool({u"mousemove_relative"_s, u"40"_s, u"0"_s});
    int wakes = 0;
    const Handle waking = pointer().onNextActivity([&] { ++wakes; });
    EXPECT_TRUE(eventually([&] { return wakes == 1; })) << "the move was missed";
}

TEST_F(X11PointerTest, aNewRequestReplacesTheOldOne) {
    int old = 0;
    int dropped = 0;
    int newest = 0;
    const Handle replaced = pointer().onNextActivity([&] { ++old; });
    Handle handle = pointer().onNextActivity([&] { ++dropped; });
    handle.reset();
    const Handle waking = pointer().onNextActivity([&] { ++newest; });
    xdotool({u"mousemove_relative"_s, u"5"_s, u"5"_s});
    EXPECT_TRUE(eventually([&] { return newest == 1; }));
    EXPECT_EQ(old, 0);
    EXPECT_EQ(dropped, 0);
}

} // namespace
} // namespace ravelo::x11
