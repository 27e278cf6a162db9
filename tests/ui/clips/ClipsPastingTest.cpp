#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

TEST_F(Panel, severalClipsAreCopiedAsOneInTheOrderOfChoosing) {
    openSearch();
    pressKeys(u"Down Ctrl+Space Up Ctrl+Space"_s);
    EXPECT_EQ(text(u"copySelected"_s), u"Copy 2"_s);
    EXPECT_TRUE(in(u"card1"_s, u"order"_s)->isVisible());
    pressKeys(u"F2"_s);
    EXPECT_EQ(shown(u"clipSheet"_s), nullptr) << "one of them is edited";
    pressKeys(u"Return"_s);
    EXPECT_EQ(pasteboardText(), u"second\nfirst"_s);
    EXPECT_FALSE(world.controller.isOpen());

    rebuild();
    openSearch();
    pressKeys(u"Down Ctrl+Space Down Ctrl+Space Alt+Return"_s);
    EXPECT_EQ(pasteboardText(), u"second\nthird"_s) << "or only the current one";
}

TEST_F(Panel, severalClipsAreJoinedAsTheSettingsSay) {
    for (const auto& [how, text] : {std::pair(u"space"_s, u"first second"_s),
                                    {u"comma"_s, u"first, second"_s},
                                    {u"nothing"_s, u"firstsecond"_s},
                                    {u"something else"_s, u"first\nsecond"_s}}) {
        world.settings.joinWith.set(how);
        openSearch();
        pressKeys(u"Ctrl+Space Down Ctrl+Space Return"_s);
        EXPECT_EQ(pasteboardText(), text);
        rebuild();
    }
}

/// The text that is pasted, empty if it is only copied.
class Pastes : public Panel {
protected:
    QString pasted() {
        world.scheduler.advance(Seconds(0.02));
        const bool typed = !world.pasteKeys.pressed.empty();
        world.pasteKeys.pressed.clear();
        return typed ? pasteboardText() : QString();
    }
};

TEST_F(Pastes, byShiftUnlessTheSettingIsTheOtherWay) {
    struct Case {
        int key;
        Qt::KeyboardModifiers modifiers;
        QString copied;
    };

    const auto shift = Qt::ShiftModifier;
    const auto control = Qt::ControlModifier;
    const Case cases[] = {{Qt::Key_Return, {}, u"first"_s},
                          {Qt::Key_Return, shift, u"first"_s},
                          {Qt::Key_3, control, u"third"_s},
                          {Qt::Key_3, control | shift, u"third"_s}};
    for (const bool returnPastes : {false, true}) {
        world.settings.returnPastes.set(returnPastes);
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << returnPastes << " " << c.key << " " << c.modifiers);
            openSearch();
            press(c.key, c.modifiers);
            EXPECT_FALSE(world.controller.isOpen());
            EXPECT_EQ(pasteboardText(), c.copied);
            const bool pastes = c.modifiers.testFlag(shift) != returnPastes;
            EXPECT_EQ(pasted(), pastes ? c.copied : QString());
            rebuild();
        }
    }
}

TEST_F(Pastes, byTheDigitsKeyWhoseNameShiftChanges) {
    openSearch();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::ShiftModifier, 11, 0x40,
                    0);
    QCoreApplication::sendEvent(&view.window(), &event);
    EXPECT_EQ(pasted(), u"second"_s);
}

TEST_F(Pastes, severalClipsAsOne) {
    openSearch();
    pressKeys(u"Shift+Down"_s);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(pasted(), u"first\nsecond"_s);
}

TEST_F(Pastes, asksBeforeSeveralLinesGoIntoATerminal) {
    world.store.addClip(u"rm -r *\nls"_s);
    world.pasteKeys.next = PasteKeys::Target{1, {u"foot"_s}};
    openSearch();
    press(Qt::Key_Return, Qt::ShiftModifier);
    item(u"pasteQuestion"_s);
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(pasteboardText(), QString()) << "copied before the answer";
    EXPECT_EQ(property(u"pasteQuestion"_s, u"no"_s, "primary"), true) << "Return presses it";
    EXPECT_EQ(property(u"pasteQuestion"_s, u"yes"_s, "primary"), false);
    pressKeys(u"Return"_s);
    EXPECT_EQ(pasted(), QString()) << "Return means no";
    EXPECT_TRUE(world.controller.isOpen());

    EXPECT_TRUE(eventually([this] { return shown(u"pasteQuestion"_s) == nullptr; }));
    press(Qt::Key_Return, Qt::ShiftModifier);
    item(u"pasteQuestion"_s);
    clickIn(u"pasteQuestion"_s, u"yes"_s);
    EXPECT_FALSE(world.controller.isOpen());
    EXPECT_EQ(pasted(), u"rm -r *\nls"_s);

    rebuild();
    openSearch();
    pressKeys(u"Down"_s);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(pasted(), u"first"_s) << "one line needs no question";
}

} // namespace

} // namespace ravelo
