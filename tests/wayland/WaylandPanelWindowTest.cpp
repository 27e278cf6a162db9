#include "contract/PanelWindowContract.h"
#include "fakes/ManualScheduler.h"
#include "platform/wayland/window/WaylandHotZone.h"
#include "wayland/WaylandPanelFixture.h"

#include <QGuiApplication>
#include <QTimer>

namespace ravelo::live {
namespace {

using namespace Qt::StringLiterals;

class WaylandHost final : public PanelWindowHost {
public:
    [[nodiscard]] PanelWindow& panel() override { return *desk_.panel; }

    [[nodiscard]] Screen screen() override { return *desk_.server->screens().main(); }

    [[nodiscard]] bool isShown() override { return !PanelDesk::redPart().isEmpty(); }

    [[nodiscard]] QRectF frame() override { return PanelDesk::redPart(); }

    [[nodiscard]] bool hasKeyboard() override {
        return QGuiApplication::focusWindow() == &desk_.window;
    }

    void movePointer(QPointF place) override { desk_.hand.move(place); }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return ravelo::eventually(condition);
    }

private:
    PanelDesk desk_;
};

INSTANTIATE_TEST_SUITE_P(Wayland, PanelWindowContract, testing::Values([]() {
                             return std::unique_ptr<PanelWindowHost>(new WaylandHost);
                         }));

/// A collapsed panel and its hot zone, on one output or two.
class WaylandHotZoneTest : public testing::Test {
protected:
    void SetUp() override { show(*desk_.server->screens().main(), {200, 12}); }

    void show(const Screen& screen, QSizeF size) {
        QPainterPath outline;
        outline.addRect({{}, size});
        desk_.panel->place(screen, size);
        desk_.panel->setOutline(outline);
        desk_.panel->orderFront();
        zone_->setPanel({});
        const QRectF frame(QPointF(screen.frame.center().x() - size.width() / 2, 0), size);
        EXPECT_TRUE(eventually([&] { return QRectF(PanelDesk::redPart()) == frame; }));
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) {
        return ravelo::eventually([&] {
            scheduler_.advance(Seconds(0));
            return condition();
        });
    }

    /// Until all motion has arrived.
    void rest() {
        bool rested = false;
        QTimer::singleShot(200, [&rested] { rested = true; });
        EXPECT_TRUE(eventually([&rested] { return rested; }));
    }

    /// By the compositor.
    [[nodiscard]] static bool done(const QStringList& command) {
        return output("swaymsg", QStringList{u"--raw"_s} + command).contains("true");
    }

    [[nodiscard]] std::optional<Screen> addOutput() {
        EXPECT_TRUE(done({u"create_output"_s}));
        EXPECT_TRUE(eventually([&] { return desk_.server->screens().all().size() == 2; }));
        return desk_.server->screens().all().back();
    }

    PanelDesk desk_;
    ManualScheduler scheduler_;
    std::unique_ptr<HotZone> zone_ = desk_.server->hotZone(scheduler_, *desk_.panel);
    HotZone::Sight sight_;
    Handle sights_ = zone_->onSight([this](const HotZone::Sight& sight) {
        sight_ = sight;
        return HotZone::Report::onChange;
    });
};

TEST_F(WaylandHotZoneTest, isWiderThanTheHandle) {
    desk_.hand.move({640 - 155, 10});
    EXPECT_TRUE(eventually([&] { return sight_.inZone; }));
    desk_.hand.move({640 - 170, 10});
    EXPECT_TRUE(eventually([&] { return !sight_.inZone; }));
    desk_.hand.move({640, 20});
    EXPECT_FALSE(desk_.panel->isUnderPointer()) << "below the handle";
}

TEST_F(WaylandHotZoneTest, isOnEveryScreenAndFollowsThePanel) {
    const auto right = addOutput();
    ASSERT_TRUE(right);
    EXPECT_TRUE(eventually([&] { // The strip may come later than the screen.
        desk_.hand.move({1280 + 640, 300}, 2);
        desk_.hand.move({1280 + 640, 5}, 2);
        return sight_.inZone;
    }));
    EXPECT_EQ(sight_.screen->id, right->id);
    rest();
    show(*right, {400, 300});
    EXPECT_TRUE(eventually([&] { return sight_.inZone && sight_.onPanel; }))
        << "the panel has come under the pointer";
    desk_.hand.move({640, 5}, 2);
    EXPECT_TRUE(eventually([&] { return sight_.screen->frame.left() == 0; }));
    EXPECT_TRUE(sight_.inZone) << "where the panel was";
}

TEST_F(WaylandHotZoneTest, forgetsThePointerWhenItsStripMoves) {
    const auto right = addOutput();
    ASSERT_TRUE(right);
    EXPECT_TRUE(eventually([&] {
        desk_.hand.move({1280 + 640, 300}, 2);
        desk_.hand.move({1280 + 640, 5}, 2);
        return sight_.inZone;
    }));
    EXPECT_TRUE(done({u"output"_s, right->id, u"position"_s, u"1700"_s, u"0"_s}));
    EXPECT_TRUE(eventually([&] { return !sight_.inZone; })) << "the pointer is 260 left of it now";
}

TEST_F(WaylandHotZoneTest, reportsPressesElsewhereWhileThePanelHasTheKeyboard) {
    QList<HotZone::Press> presses;
    const Handle listening = zone_->onPress([&](auto press) { presses.append(press); });
    show(*desk_.server->screens().main(), {400, 300});
    desk_.hand.move({900, 500});
    desk_.hand.click();
    desk_.panel->requestFocus({});
    EXPECT_TRUE(zone_->reportsPressesElsewhere());
    EXPECT_TRUE(zone_->look().nearPanel) << "it would close though the user types";
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == &desk_.window; }));
    desk_.hand.move({640, 100});
    desk_.hand.click();
    EXPECT_TRUE(eventually([&] { return presses.size() == 1; }));
    desk_.hand.move({900, 500});
    desk_.hand.click();
    EXPECT_TRUE(eventually([&] { return presses.size() == 2; }));
    using Press = HotZone::Press;
    EXPECT_EQ(presses, QList({Press::onPanel, Press::elsewhere}));
    const auto right = addOutput();
    ASSERT_TRUE(right);
    const auto pressOnTheRight = [&] { // What takes the press may come later than the screen.
        presses.clear();
        desk_.hand.move({1280 + 900, 500}, 2);
        desk_.hand.click();
        return presses.contains(Press::elsewhere);
    };
    EXPECT_TRUE(eventually(pressOnTheRight)) << "on a screen that came meanwhile";
    show(*right, {400, 300});
    EXPECT_TRUE(eventually(pressOnTheRight)) << "after the panel has moved there";
    desk_.panel->returnFocus();
    EXPECT_FALSE(zone_->reportsPressesElsewhere());
}

} // namespace
} // namespace ravelo::live
