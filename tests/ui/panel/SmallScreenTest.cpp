// The panel on a small screen: what is above the tabs scrolls away.

#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

StoreData manyClips() {
    StoreData data;
    for (int i = 0; i < 20; ++i) {
        data.clips.append(clip(u"clip %1"_s.arg(i), Seconds(i)));
    }
    for (int i = 0; i < 40; ++i) {
        data.note += u"line %1\n"_s.arg(i);
    }
    return data;
}

class SmallScreen : public Panel {
public:
    SmallScreen() : Panel(manyClips()) {
        world.store.setReminders({u"Call"_s});
        world.screens.change(
            {{u"small"_s, QRectF(0, 0, 640, 400), QRectF(0, 0, 640, 400), {}, {}}});
        world.pointer.moveTo({320, 3});
        world.scheduler.advance(Seconds(0.02));
        EXPECT_TRUE(world.controller.isOpen());
        view.window().resize(world.controller.frame().size().toSize());
        EXPECT_TRUE(eventually([this] { return view.window().size() == QSize(620, 380); }));
        view.window().grabWindow();
    }

    double top(const QString& name) { return item(name)->mapToScene(QPointF(0, 0)).y(); }

    /// Positive notches scroll down.
    void turn(const QString& over, int notches) {
        const QPointF place = item(over)->mapToScene(item(over)->boundingRect().center());
        for (int i = 0; i < std::abs(notches); ++i) {
            turnWheel(view.window(), place, notches > 0 ? -120 : 120);
        }
    }

    bool tabsAt(double place) {
        return eventually([&] { return std::abs(top(u"tabs"_s) - place) < 0.5; });
    }
};

constexpr double tabsBelowAll = 140;
constexpr double tabsBelowTopBar = 56;

TEST_F(SmallScreen, showsTheTopAtFirst) {
    for (const auto& [name, place] : {std::pair("reminderStrip", 56),
                                      {"usage", 88},
                                      {"tabs", 140},
                                      {"search", 180},
                                      {"strip", 220},
                                      {"card0", 256}}) {
        EXPECT_EQ(top(QString::fromUtf8(name)), place) << name;
    }
}

TEST_F(SmallScreen, theKeysScrollTheHead) {
    pressKeys(u"Down Down Down Down Down Down Down Down"_s);
    EXPECT_TRUE(tabsAt(tabsBelowTopBar)) << "it is at " << top(u"tabs"_s);
    EXPECT_EQ(top(u"search"_s), 96);
    EXPECT_TRUE(eventually([this] { return top(u"card8"_s) + 40 <= 368.5; }))
        << "the selected row is seen whole";
    pressKeys(u"Up Up Up Up Up Up Up Up"_s);
    EXPECT_TRUE(tabsAt(tabsBelowAll)) << "the first row brings back what is above it";
}

TEST_F(SmallScreen, theWheelScrollsEverywhere) {
    for (const char* over : {"card1", "tabs", "usage", "topBar"}) {
        turn(QString::fromUtf8(over), 9);
        EXPECT_TRUE(tabsAt(tabsBelowTopBar)) << over;
        turn(u"tabs"_s, -30);
        EXPECT_TRUE(tabsAt(tabsBelowAll)) << over;
    }
}

TEST_F(SmallScreen, noteAndShelfScrollTheHead) {
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(tabsAt(tabsBelowTopBar)) << "the caret is at the note's end";
    turn(u"tabs"_s, -30);
    EXPECT_TRUE(tabsAt(tabsBelowAll));

    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(tabsAt(tabsBelowAll));
    EXPECT_GT(top(u"openFolder"_s) + 28, 380) << "is seen without scrolling";
    turn(u"dropCard"_s, 9);
    EXPECT_TRUE(eventually([this] { return top(u"openFolder"_s) + 28 <= 368; }))
        << "what has been received can be reached";
    EXPECT_LT(top(u"tabs"_s), tabsBelowAll);
}

TEST_F(SmallScreen, focusedItemsScrollIntoView) {
    pressKeys(u"Down Down Down Down Down Down Down Down"_s);
    ASSERT_TRUE(tabsAt(tabsBelowTopBar));
    item(u"reminderDraft"_s)->forceActiveFocus();
    EXPECT_TRUE(tabsAt(tabsBelowAll));
}

TEST_F(SmallScreen, theUndoToastCoversNoText) {
    clickOn(u"trash"_s);
    clickIn(u"clearQuestion"_s, u"yes"_s);
    item(u"toastAction"_s);
    item(u"emptySubtitle"_s);
    EXPECT_TRUE(eventually([this] {
        const QQuickItem* subtitle = item(u"emptySubtitle"_s);
        return top(u"emptySubtitle"_s) + subtitle->height() <= top(u"toast"_s);
    })) << top(u"emptySubtitle"_s)
        << ", the toast is at " << top(u"toast"_s);
    EXPECT_GE(top(u"emptyTitle"_s), 252) << "below the snippets";
}

TEST_F(SmallScreen, theSheetOfASnippetFits) {
    clickOn(u"addSnippet"_s);
    const QQuickItem* sheet = item(u"sheet"_s);
    EXPECT_GE(sheet->y(), 12);
    EXPECT_LE(sheet->y() + sheet->height(), 380 - 12);
    EXPECT_LE(top(u"save"_s) + 32, sheet->y() + sheet->height());
}

TEST_F(Panel, hidesThePlanIfClaudeCodeIsNotInstalled) {
    open();
    view.features().usage.setInstalled(false);
    EXPECT_NE(shown(u"usage"_s), nullptr) << "only if the user wants that";
    world.settings.hideClaudeCode.set(true);
    EXPECT_EQ(shown(u"usage"_s), nullptr);
    EXPECT_EQ(item(u"tabs"_s)->y(), 72);
    view.features().usage.setInstalled(true);
    EXPECT_NE(shown(u"usage"_s), nullptr);
    EXPECT_EQ(item(u"tabs"_s)->y(), 164);
}

} // namespace

} // namespace ravelo
