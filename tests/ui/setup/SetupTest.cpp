#include "../WindowsFixture.h"

#include <QScreen>

namespace ravelo {

namespace {

TEST_F(Windows, TheGearClosesThePanelAndAsksForTheSettings) {
    QObject::connect(&world.controller, &NotchController::settingsRequested, &settings,
                     &SettingsWindow::show);
    open();
    Panel::clickOn(u"gear"_s);
    EXPECT_FALSE(world.controller.isOpen());
    ASSERT_NE(settings.window(), nullptr);
    EXPECT_TRUE(settings.window()->isVisible());
}

/// Counts how often the window says what room its shadow has.
class CountingFrame final : public WindowFrame {
public:
    explicit CountingFrame(int& rooms) : rooms_(rooms) {}

    [[nodiscard]] bool isTranslucent() const override { return true; }

    [[nodiscard]] Handle onTranslucencyChange(std::function<void()> /*callback*/) override {
        return {};
    }

    void setRoom(QMargins /*room*/) override { ++rooms_; }

    void moveTo(QPoint /*corner*/) override {}

private:
    int& rooms_;
};

TEST_F(Windows, FitAgainOnAnotherMonitorOrAtAnotherScale) {
    int rooms = 0;
    TitledWindow window({view.window(),
                         [&](QWindow&) {
                             return std::make_unique<CountingFrame>(rooms);
                         }},
                        u"A"_s, {300, 200});
    window.bringToFront();
    int before = rooms;
    Q_EMIT window.screenChanged(window.screen());
    EXPECT_GT(rooms, before) << "moved to a monitor";
    before = rooms;
    Q_EMIT window.screen()->logicalDotsPerInchChanged(120);
    EXPECT_GT(rooms, before) << "its scale has changed";
}

class Setup : public Windows {
public:
    Setup() { start(); }

    void start() {
        setup.show();
        window = setup.window();
        EXPECT_TRUE(eventually([this] { return window->isActive(); }));
        EXPECT_TRUE(in(window, u"start"_s)->isVisible()) << "from the beginning";
    }

    QString detail() { return in(window, u"auto"_s)->property("detail").toString(); }

    QPointer<TitledWindow> window;
};

TEST_F(Setup, OffersSuperVAndTakesItOnlyIfChosen) {
    EXPECT_TRUE(kept(u"shortcut"_s).isUndefined()) << "taken without being asked for";
    clickOn(window, u"useShortcut"_s);
    EXPECT_EQ(kept(u"shortcut"_s), u"Super+V"_s);
    clickOn(window, u"useShortcut"_s);
    EXPECT_EQ(kept(u"shortcut"_s), QString());
    shortcut.become(GlobalShortcut::State::impossible);
    EXPECT_FALSE(in(window, u"shortcutOffer"_s)->isVisible());
}

TEST_F(Setup, CanBeDoneByKeyboard) {
    int layouts = 0;
    world.settings.onLayoutChange = [&] {
        ++layouts;
    };
    press(*window, Qt::Key_Return);
    EXPECT_FALSE(in(window, u"start"_s)->isVisible());
    expectTabStops(*window, {"auto", "notch"});
    EXPECT_TRUE(kept(u"macType"_s).isUndefined());
    press(*window, Qt::Key_Space);
    EXPECT_EQ(kept(u"macType"_s), u"notch"_s);
    press(*window, Qt::Key_Down);
    EXPECT_EQ(kept(u"macType"_s), u"none"_s);
    EXPECT_TRUE(in(window, u"none"_s)->hasActiveFocus());
    EXPECT_EQ(layouts, 2);
    EXPECT_FALSE(world.settings.onboarded());
    press(*window, Qt::Key_Tab);
    press(*window, Qt::Key_Return);
    EXPECT_TRUE(in(window, u"continue"_s)->isVisible()) << "plain files is chosen at first";
    press(*window, Qt::Key_Return);
    EXPECT_EQ(kept(u"onboarded"_s), true);
    EXPECT_EQ(setup.window(), nullptr);
    EXPECT_TRUE(eventually([this] { return window.isNull(); }));
}

TEST_F(Setup, CanBeDoneByMouseAndReportsTheNotch) {
    press(*window, Qt::Key_Escape);
    EXPECT_EQ(setup.window(), nullptr);
    EXPECT_TRUE(kept(u"onboarded"_s).isUndefined()) << "closed is not done";
    start();
    clickOn(window, u"start"_s);
    EXPECT_EQ(detail(), u"We found no notch on this display"_s);
    Screen notched = world.screens.screens.front();
    notched.leftOfNotch = QRectF(0, 0, 600, 32);
    notched.rightOfNotch = QRectF(800, 0, 640, 32);
    world.screens.change({notched});
    EXPECT_EQ(detail(), u"We found a notch on this display"_s);
    world.screens.change({});
    EXPECT_EQ(detail(), u"We found no notch on this display"_s);

    const auto selected = [this] {
        QStringList names;
        for (const QString& name : {u"auto"_s, u"notch"_s, u"none"_s}) {
            if (in(window, name)->property("selected").toBool()) {
                names.append(name);
            }
        }
        return names;
    };
    world.settings.macType.set(u"nonsense"_s);
    EXPECT_EQ(selected(), QStringList(u"auto"_s));
    for (const QString& name : {u"none"_s, u"notch"_s, u"auto"_s}) {
        clickOn(window, name);
        EXPECT_EQ(kept(u"macType"_s), name);
        EXPECT_EQ(selected(), QStringList(name));
    }
    clickOn(window, u"done"_s);
    clickOn(window, u"continue"_s);
    EXPECT_EQ(kept(u"onboarded"_s), true);
    EXPECT_EQ(setup.window(), nullptr);
    EXPECT_TRUE(eventually([this] { return window.isNull(); }));
}

TEST_F(Setup, OffersTheDesktopsExtensionLastAndTurnsItOnWhenAsked) {
    FakeDesktopExtension extension;
    OnboardingController offering({view.window()}, world.settings, world.screens, &extension);
    offering.show();
    const QPointer<TitledWindow> offered = offering.window();
    ASSERT_TRUE(eventually([&] { return offered->isActive(); }));
    clickOn(offered, u"start"_s);
    clickOn(offered, u"done"_s);
    clickOn(offered, u"continue"_s);
    ASSERT_EQ(offering.window(), offered) << "there is one more step";
    EXPECT_EQ(extension.requests, 0) << "without being asked";
    clickOn(offered, u"turnOn"_s);
    EXPECT_EQ(extension.requests, 1);
    EXPECT_EQ(in(offered, u"extensionHeading"_s)->property("text").toString(),
              u"Log out and in once"_s);
    EXPECT_FALSE(in(offered, u"turnOn"_s)->isVisible());
    for (const auto& [state, says] :
         {std::pair(DesktopExtension::State::waitsForStart, u"It is turned on."_s),
          std::pair(DesktopExtension::State::failed, u"It could not be turned on."_s),
          std::pair(DesktopExtension::State::older, u"The extension is older than Ravelo."_s),
          std::pair(DesktopExtension::State::newer, u"The extension is newer than Ravelo."_s)}) {
        extension.change(state);
        EXPECT_TRUE(in(offered, u"next"_s)->property("text").toString().startsWith(says));
    }
    clickOn(offered, u"finish"_s);
    EXPECT_EQ(kept(u"onboarded"_s), true);
    EXPECT_EQ(offering.window(), nullptr);
    EXPECT_TRUE(eventually([&] { return offered.isNull(); }));
}

} // namespace

} // namespace ravelo
