#include "panel_fixture/PanelFixture.h"
#include "ui/windows/TitledWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlComponent>

namespace ravelo {

namespace {

class PastingInto : public Panel, public testing::WithParamInterface<const char*> {
public:
    void openField(const QString& tab, const QString& field) {
        openTab(tab);
        // If a field shows this, it has read Qt's clipboard itself.
        QGuiApplication::clipboard()->setText(u"read on the main thread"_s);
        clickOn(field);
        QMetaObject::invokeMethod(item(field), "selectAll");
    }

    void paste() { pressKeys(QString::fromLatin1(GetParam())); }
};

TEST_P(PastingInto, replacesTheSelection) {
    for (const auto& [tab, field, pasted] :
         {std::tuple(u"Clipboard"_s, u"searchInput"_s, u"two lines"_s),
          {u"Notes"_s, u"noteInput"_s, u"two\nlines"_s}}) {
        openField(tab, field);
        world.pasteboard.offerText(u"two\nlines"_s);
        paste();
        world.scheduler.advance(Seconds(0.1));
        EXPECT_EQ(text(field), pasted);
        type(u"+"_s);
        EXPECT_EQ(text(field), pasted + u'+') << "the cursor is elsewhere";
    }
}

TEST_P(PastingInto, doesNotBlockTypingWhileTheOwnerIsSilent) {
    for (const auto& [tab, field] :
         {std::pair(u"Clipboard"_s, u"searchInput"_s), {u"Notes"_s, u"noteInput"_s}}) {
        openField(tab, field);
        type(u"typed"_s);
        world.pasteboard.offerSilence();
        paste();
        world.scheduler.advance(Seconds(30));
        press(Qt::Key_End);
        type(u" on"_s);
        EXPECT_EQ(text(field), u"typed on"_s);
    }
}

INSTANTIATE_TEST_SUITE_P(All, PastingInto, testing::Values("Ctrl+V", "Shift+Ins"));

TEST_F(Panel, theMiddleButtonPastesWhereItPoints) {
    open();
    world.pasteboard.offerText(u"pasted"_s);
    clickOn(u"searchInput"_s, Qt::MiddleButton);
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(text(u"searchInput"_s), u"pasted"_s);
    EXPECT_TRUE(world.window.focused);
}

TEST_F(Panel, anAnswerForAClosedFieldIsDropped) {
    world.pasteboard.answerTime = Seconds(5);
    world.pasteboard.offerText(u"late"_s);
    openSearch();
    press(Qt::Key_V, Qt::ControlModifier);
    close();
    world.scheduler.advance(Seconds(6));
    open();
    EXPECT_EQ(text(u"searchInput"_s), QString());
}

/// A window with only a text field.
class FieldWindow : public Panel {
public:
    FieldWindow() {
        QQmlComponent component(view.window().engine());
        component.setData("import Ravelo.Text\nEditLine { placeholder: \"Field\" }", QUrl());
        field = qobject_cast<QQuickItem*>(component.create());
        window.setContent({}, nullptr, field);
        window.bringToFront();
        EXPECT_TRUE(eventually([this] { return window.isActive(); }));
    }

    QQuickItem* field = nullptr; ///< Owned by the window.
    TitledWindow window{{view.window()}, u"Test"_s, QSize(200, 100)};
};

TEST_F(FieldWindow, isIndependentOfThePanel) {
    click(window, {20, 50});
    EXPECT_TRUE(field->hasActiveFocus());
    EXPECT_FALSE(world.window.focused) << "the panel took the keyboard";
    world.pasteboard.offerText(u"pasted"_s);
    ravelo::pressKeys(window, u"Ctrl+V"_s);
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(field->property("text"), u"pasted"_s);

    open();
    view.features().clips->remove(0);
    ravelo::pressKeys(window, u"Ctrl+Z"_s);
    EXPECT_EQ(world.store.clips().size(), 2) << "undid what was deleted in the panel";
}

// A cursor that blinks in a closed panel would wake the program twice a second, all day.
TEST_F(FieldWindow, onlyTheFocusedCursorBlinks) {
    const auto blinks = [this] {
        return find(field, u"caret"_s)
            ->parentItem()
            ->findChild<QObject*>(u"blink"_s)
            ->property("running");
    };
    click(window, {20, 50});
    ravelo::pressKeys(window, u"A"_s);
    EXPECT_EQ(blinks(), true) << "with the focus";
    field->setFocus(false);
    EXPECT_EQ(blinks(), false) << "without the focus";
    field->setProperty("text", u"moved"_s);
    EXPECT_EQ(blinks(), false) << "moved without the focus";
}

} // namespace

} // namespace ravelo
