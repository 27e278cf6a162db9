#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

TEST_F(Panel, editsAClipBeforeItIsCopied) {
    openSearch();
    pressKeys(u"F2"_s);
    QQuickItem* const input = item(u"clipInput"_s);
    ASSERT_TRUE(eventually([&] { return input->hasActiveFocus(); }));
    pressKeys(u"Return ! Ctrl+Return"_s);
    EXPECT_EQ(pasteboardText(), u"first\n!"_s);
    EXPECT_EQ(clips(), u"first\n! first second third"_s) << "the old clip is gone";
    EXPECT_FALSE(world.controller.isOpen());

    rebuild();
    openSearch();
    pressKeys(u"F2"_s);
    ASSERT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }));
    pressKeys(u"Escape"_s);
    EXPECT_TRUE(eventually([this] { return !shown(u"clipSheet"_s); })) << "unchanged: not asked";
    pressKeys(u"F2"_s);
    ASSERT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }));
    pressKeys(u"x Escape"_s);
    EXPECT_TRUE(item(u"discardQuestion"_s)->isVisible());
    pressKeys(u"Tab Return"_s);
    EXPECT_TRUE(eventually([this] { return !shown(u"clipSheet"_s); }));
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(pasteboardText(), u"first\n!"_s);
}

TEST_F(Panel, keepsAChangedClipUntilItOpensAgain) {
    const auto isEditing = [this] {
        return view.features().clips->editor()->isEditing();
    };
    openSearch();
    pressKeys(u"F2"_s);
    ASSERT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }));
    rebuild();
    openByKey();
    EXPECT_FALSE(isEditing()) << "nothing was changed";
    close();

    openSearch();
    pressKeys(u"F2"_s);
    ASSERT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }));
    for (const QString& next : {u"a"_s, u"b"_s, u"c"_s}) {
        pressKeys(next);
        rebuild();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // The former content.
        EXPECT_FALSE(isEditing()) << "closed";
        openByKey();
        ASSERT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }));
    }
    EXPECT_EQ(text(u"clipInput"_s), u"firstabc"_s);
    world.settings.lastTab.set(u"Notes"_s);
    rebuild();
    openByKey();
    EXPECT_TRUE(eventually([&] { return item(u"clipInput"_s)->hasActiveFocus(); }))
        << "also over another tab";
    world.settings.lastTab.set(u"Clipboard"_s);
    pressKeys(u"Escape"_s);
    EXPECT_TRUE(item(u"discardQuestion"_s)->isVisible());
    pressKeys(u"Tab Return"_s);
    rebuild();
    openByKey();
    EXPECT_FALSE(isEditing()) << "discarded";

    pressKeys(u"F2 x"_s);
    close();
    openByKey(); // Before the panel was built again.
    EXPECT_EQ(text(u"clipInput"_s), u"firstx"_s);
    pressKeys(u"y Ctrl+Return"_s);
    EXPECT_EQ(pasteboardText(), u"firstxy"_s);
}

TEST_F(Panel, anEditThatGoesOnHasNoCaretBeforeThereIsAKeyboard) {
    openSearch();
    pressKeys(u"F2 x"_s);
    close();
    QWindow elsewhere;
    elsewhere.show();
    elsewhere.requestActivate();
    ASSERT_TRUE(eventually([&] { return elsewhere.isActive(); }));
    rebuild();
    open();
    EXPECT_FALSE(item(u"clipInput"_s)->hasActiveFocus());
    clickIn(u"clipSheet"_s, u"cancel"_s);
    view.window().requestActivate(); // The press asked for it.
    ASSERT_TRUE(eventually([this] { return view.window().isActive(); }));
    pressKeys(u"Escape"_s);
    EXPECT_TRUE(eventually([this] { return !shown(u"discardQuestion"_s); }));
    pressKeys(u"y"_s);
    EXPECT_EQ(text(u"clipInput"_s), u"firstxy"_s) << "the sheet, not what is below it";
}

TEST_F(Panel, copiesAsPlainText) {
    const QUuid first = world.store.clips()[0].id;
    world.store.setForms(first, {{}, {{u"text/html"_s, "<b>first</b>"}}});
    world.worker.drain();
    for (const auto& [keys, html] : {std::pair(u"Return"_s, QByteArray("<b>first</b>")),
                                     std::pair(u"Alt+Return"_s, QByteArray())}) {
        rebuild();
        openSearch();
        pressKeys(keys);
        world.scheduler.advance(Seconds(0));
        EXPECT_EQ(world.pasteboard.bytes("text/html"_L1), html) << qPrintable(keys);
        EXPECT_EQ(pasteboardText(), u"first"_s);
        EXPECT_FALSE(world.controller.isOpen());
    }
    rebuild();
    openSearch();
    pressKeys(u"Menu"_s);
    EXPECT_EQ(property(u"rowMenu"_s, u"item2"_s, "modelData").toMap()[u"text"_s],
              u"Copy as plain text"_s);
    clickIn(u"rowMenu"_s, u"item2"_s);
    EXPECT_FALSE(world.controller.isOpen()) << "another entry was chosen";
}

} // namespace

} // namespace ravelo
