#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

class PanelUndo : public Panel {
protected:
    void undoByKey() { press(Qt::Key_Z, Qt::ControlModifier); }
};

TEST_F(PanelUndo, restoresEverythingDeletedWhileTheToastIsShown) {
    openSearch();
    press(Qt::Key_Delete);
    EXPECT_EQ(toast(), u"Deleted"_s);
    world.scheduler.advance(Seconds(9));
    press(Qt::Key_Delete);
    EXPECT_EQ(toast(), u"2 deleted"_s);
    EXPECT_EQ(clips(), u"third"_s);
    world.scheduler.advance(Seconds(9));
    undoByKey();
    EXPECT_EQ(clips(), u"first second third"_s);
    EXPECT_EQ(toast(), u"Restored ✓"_s);
    undoByKey();
    EXPECT_EQ(clips(), u"first second third"_s);
}

TEST_F(PanelUndo, selectsWhatCameBack) {
    openSearch();
    pressKeys(u"Down Delete Up"_s);
    ASSERT_EQ(clips(), u"first third"_s);
    ASSERT_EQ(item(u"list"_s)->property("currentIndex"), 0);
    undoByKey();
    EXPECT_TRUE(eventually([this] { return clips() == u"first second third"_s; }));
    EXPECT_EQ(item(u"list"_s)->property("currentIndex"), 1);
}

TEST_F(PanelUndo, expiresAfterTenSecondsOrOnClosing) {
    openSearch();
    press(Qt::Key_Delete);
    world.scheduler.advance(Seconds(10.1));
    EXPECT_EQ(toast(), QString());
    undoByKey();
    press(Qt::Key_Delete);
    rebuild();
    openSearch();
    undoByKey();
    EXPECT_EQ(clips(), u"third"_s);
}

TEST_F(PanelUndo, undoesTheLatestChangeFirst) {
    openSearch();
    press(Qt::Key_Delete);
    type(u"third"_s);
    undoByKey();
    EXPECT_EQ(text(u"searchInput"_s), QString()) << "the field has an undo of its own";
    EXPECT_EQ(clips(), u"second third"_s);
    undoByKey();
    EXPECT_EQ(clips(), u"first second third"_s);

    type(u"x"_s);
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete);
    undoByKey();
    EXPECT_EQ(clips(), u"first second third"_s) << "what was typed before is not the last";
}

TEST_F(PanelUndo, canBeReachedByTab) {
    openSearch();
    clickOn(u"trash"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(toast(), u"History cleared · 3 clips"_s);
    const QQuickItem* button = item(u"toastAction"_s);
    for (int i = 0; i < 20 && !button->hasActiveFocus(); ++i) {
        press(Qt::Key_Tab);
    }
    ASSERT_TRUE(button->hasActiveFocus()) << "by twenty times Tab";
    world.scheduler.advance(Seconds(60));
    press(Qt::Key_Space);
    EXPECT_EQ(clips(), u"first second third"_s);
    EXPECT_FALSE(button->hasActiveFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(world.controller.isOpen()) << "the keyboard is lost";
}

TEST_F(PanelUndo, canBeClickedAndBlocksClicksBelow) {
    openSearch();
    const QString title = world.store.snippets().first().title;
    press(Qt::Key_Tab);
    clickOn(u"chip0"_s, Qt::RightButton);
    const QQuickItem* remove = in(u"snippetMenu"_s, u"item1"_s);
    const QQuickItem* menu = remove->parentItem()->parentItem();
    EXPECT_NEAR(remove->mapToItem(menu, {remove->width() / 2, 0}).x(), menu->width() / 2, 0.01)
        << "centred";
    clickIn(u"snippetMenu"_s, u"item1"_s);
    clickIn(u"deleteQuestion"_s, u"yes"_s);
    EXPECT_EQ(toast(), u"Snippet deleted"_s);
    const QString copied = pasteboardText();
    const QQuickItem* capsule = item(u"toast"_s);
    click(view.window(), capsule->mapToScene({5, 18}));
    EXPECT_EQ(pasteboardText(), copied) << "pressed beside the button, what lies below was copied";
    clickOn(u"toastAction"_s);
    EXPECT_EQ(world.store.snippets().first().title, title);
}

} // namespace

} // namespace ravelo
