// The whole panel on the in-memory platform: what it shows, and what the user's hands do to it.

#include "PanelFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST_F(Panel, showsAHandleUntilItOpens) {
    EXPECT_NE(shown(u"handle"_s), nullptr);
    EXPECT_EQ(shown(u"panel"_s), nullptr);
    open();
    EXPECT_EQ(shown(u"handle"_s), nullptr);
    EXPECT_EQ(item(u"panel"_s)->size(), QSizeF(927, 560));
}

TEST_F(Panel, hasItsNextContentReadySoonAfterItCloses) {
    EXPECT_TRUE(view.host().hasContent());
    open();
    close();
    EXPECT_FALSE(view.host().hasContent());
    world.scheduler.advance(untilBuilt);
    EXPECT_TRUE(view.host().hasContent());
    EXPECT_EQ(view.host().contentSize(), QSizeF(927, 560));
    EXPECT_EQ(find(view.window().contentItem(), u"panel"_s)->size(), QSizeF(927, 560))
        << "hidden content must not be laid out anew at the opening";
}

TEST_F(Panel, opensAlsoBeforeItsContentIsBuilt) {
    open();
    close();
    open();
    EXPECT_NE(shown(u"card0"_s), nullptr);
}

TEST_F(Panel, tellsDatesAnewAtTheOpening) {
    open();
    close();
    world.scheduler.advance(untilBuilt);
    view.window().grabWindow(); // The hidden rows exist by now.
    world.scheduler.advance(Seconds(3 * 3600));
    open();
    EXPECT_EQ(find(item(u"card0"_s), u"subtitle"_s)->property("text"), u"3 hr. ago"_s);
}

TEST_F(Panel, letsAgesGoOnWhileItIsOpen) {
    const auto age = [this] {
        return find(item(u"card0"_s), u"subtitle"_s)->property("text").toString();
    };
    world.scheduler.advance(Seconds(10));
    const int atRest = world.scheduler.pending();
    open();
    EXPECT_EQ(age(), u"1 min. ago"_s);
    world.scheduler.advance(Seconds(60));
    EXPECT_EQ(age(), u"2 min. ago"_s);
    world.store.addClip(u"new"_s);
    world.scheduler.advance(Seconds(5));
    EXPECT_EQ(age(), u"5 sec. ago"_s);
    world.scheduler.advance(Seconds(3596));
    EXPECT_EQ(age(), u"1 hr. ago"_s);
    close();
    world.scheduler.advance(Seconds(10));
    EXPECT_EQ(world.scheduler.pending(), atRest) << "nobody sees them";
}

TEST_F(Panel, tellsHowMuchOfThePlanIsUsed) {
    const auto percents = [this] {
        return in(u"usageSession"_s, u"percent"_s)->property("text").toString() + u' ' +
               in(u"usageWeek"_s, u"percent"_s)->property("text").toString();
    };
    const auto spend = [this](const PlanWindows& windows) {
        plan.write(windows);
        world.scheduler.advance(Seconds(5));
    };
    spend({UsageWindow{41.5, {}}, {}});
    open();
    EXPECT_EQ(percents(), u"42% \u2014"_s);
    spend({UsageWindow{43, {}}, UsageWindow{130, {}}});
    EXPECT_EQ(percents(), u"43% 130%"_s);
}

TEST_F(Panel, showsTheNewestOfWhatWasCopiedWhileItWasClosed) {
    for (int i = 0; i < 20; ++i) {
        world.store.addClip(u"while it was closed %1"_s.arg(i));
    }
    open();
    const QQuickItem* newest = item(u"card0"_s);
    EXPECT_EQ(find(newest, u"title"_s)->property("text"), u"while it was closed 19"_s);
    EXPECT_EQ(newest->mapToScene({0, 0}), QPointF(34, 280));
}

TEST_F(Panel, staysAtTheNewestWhileMoreIsCopied) {
    open();
    for (int i = 0; i < 20; ++i) {
        world.store.addClip(u"while it was open %1"_s.arg(i));
    }
    EXPECT_TRUE(eventually([this] {
        view.window().grabWindow();
        return item(u"card0"_s)->mapToScene({0, 0}) == QPointF(34, 280);
    }));
}

TEST_F(Panel, startsAnewAtEachOpening) {
    open();
    clickOn(u"searchInput"_s);
    type(u"second"_s);
    clickOn(u"trash"_s);
    close();
    world.scheduler.advance(untilBuilt);
    open();
    EXPECT_EQ(text(u"searchInput"_s), QString());
    EXPECT_EQ(shown(u"clearQuestion"_s), nullptr);
    EXPECT_NE(shown(u"card2"_s), nullptr);
}

TEST_F(Panel, copiesTheClipThatIsClicked) {
    open();
    clickOn(u"card1"_s);
    EXPECT_EQ(pasteboardText(), u"second"_s);
    item(u"toast"_s);
    EXPECT_EQ(world.store.clips().size(), 3) << "its own copy became a clip";
}

TEST_F(Panel, copiesTheSnippetThatIsClicked) {
    open();
    clickOn(u"chip0"_s);
    EXPECT_EQ(pasteboardText(), world.store.snippets().first().body);
}

TEST_F(Panel, pinsAndDeletesByTheButtonsOfTheRowUnderThePointer) {
    open();
    EXPECT_EQ(shown(u"pin"_s), nullptr);
    const QQuickItem* card = item(u"card2"_s);
    send(view.window(), QEvent::MouseMove, card->mapToScene({400, 20}));
    const auto clickIn = [&](const QString& name) {
        const QQuickItem* button = find(card, name);
        ASSERT_TRUE(button->isVisible());
        click(view.window(), button->mapToScene({12, 12}));
    };
    clickIn(u"pin"_s);
    EXPECT_EQ(world.store.clips().first().text, u"third"_s);
    EXPECT_TRUE(world.store.clips().first().pinned);
    EXPECT_EQ(pasteboardText(), QString()) << "the click went through to the row";
}

struct ClearCase {
    const char* name;
    void (*answer)(QQuickWindow& window, QQuickItem* yes, QQuickItem* no);
    qsizetype left;
};

class Clearing : public Panel, public testing::WithParamInterface<ClearCase> {};

TEST_P(Clearing, asksFirst) {
    open();
    world.store.togglePin(world.store.clips().first().id);
    clickOn(u"trash"_s);
    EXPECT_EQ(world.store.clips().size(), 3);
    EXPECT_TRUE(world.window.focused) << "Return would go elsewhere";
    item(u"clearQuestion"_s);
    GetParam().answer(view.window(), in(u"clearQuestion"_s, u"yes"_s),
                      in(u"clearQuestion"_s, u"no"_s));
    EXPECT_EQ(world.store.clips().size(), GetParam().left);
    EXPECT_TRUE(eventually([this] { return shown(u"clearQuestion"_s) == nullptr; }));
    EXPECT_TRUE(world.controller.isOpen());
}

void clickMiddle(QQuickWindow& window, const QQuickItem* button) {
    click(window, button->mapToScene(button->boundingRect().center()));
}

INSTANTIATE_TEST_SUITE_P(
    Answers, Clearing,
    testing::Values(ClearCase{"yes",
                              [](QQuickWindow& window, QQuickItem* yes, QQuickItem*) {
                                  clickMiddle(window, yes);
                              },
                              1},
                    ClearCase{"returnKey",
                              [](QQuickWindow& window, QQuickItem*, QQuickItem*) {
                                  press(window, Qt::Key_Return);
                              },
                              1},
                    ClearCase{"no",
                              [](QQuickWindow& window, QQuickItem*, QQuickItem* no) {
                                  clickMiddle(window, no);
                              },
                              3},
                    ClearCase{"escapeKey",
                              [](QQuickWindow& window, QQuickItem*, QQuickItem*) {
                                  press(window, Qt::Key_Escape);
                              },
                              3},
                    ClearCase{"elsewhere",
                              [](QQuickWindow& window, QQuickItem*, QQuickItem*) {
                                  click(window, {300, 400});
                              },
                              3}),
    [](const auto& row) { return row.param.name; });

TEST_F(Panel, aSnippetWithoutATitleIsNotSaved) {
    open();
    const qsizetype before = world.store.snippets().size();
    clickOn(u"addSnippet"_s);
    clickOn(u"bodyInput"_s);
    clickOn(u"save"_s);
    EXPECT_TRUE(view.host().snippetEditor()->isEditing()) << "what was typed is lost";
    EXPECT_TRUE(item(u"titleField"_s)->property("mistaken").toBool()) << "nothing says why";
    EXPECT_TRUE(item(u"titleInput"_s)->hasActiveFocus());
    type(u"t"_s);
    EXPECT_FALSE(item(u"titleField"_s)->property("mistaken").toBool());
    clickOn(u"save"_s);
    EXPECT_EQ(world.store.snippets().size(), before + 1);
}

TEST_F(Panel, escapeClearsTheSearchAndThenCloses) {
    open();
    clickOn(u"searchInput"_s);
    EXPECT_TRUE(world.window.focused);
    type(u"second"_s);
    EXPECT_EQ(view.host().clips()->count(), 1);
    press(view.window(), Qt::Key_Escape);
    EXPECT_EQ(view.host().clips()->count(), 3);
    EXPECT_TRUE(world.controller.isOpen());
    press(view.window(), Qt::Key_Escape);
    EXPECT_FALSE(world.controller.isOpen());
}

TEST_F(Panel, aSearchWithoutAMatchShowsTheEmptyState) {
    open();
    EXPECT_EQ(shown(u"emptyTitle"_s), nullptr);
    clickOn(u"searchInput"_s);
    type(u"nowhere"_s);
    EXPECT_EQ(text(u"emptyTitle"_s), u"No clipboard history yet"_s);
    EXPECT_EQ(text(u"emptySubtitle"_s), u"Copy anything with ⌘C and it shows up here."_s);
}

struct Key {
    int key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QString text = {};
};

struct KeysCase {
    const char* name;
    QList<Key> keys;
    QStringList clips; ///< What is left, in order.
    QString pasteboard;
    bool open;
};

class Keys : public Panel, public testing::WithParamInterface<KeysCase> {
protected:
    Keys() : Panel(twelveClips()) {}

    static StoreData twelveClips() {
        StoreData data;
        for (int i = 0; i < 12; ++i) {
            data.clips.append(clip(QString::number(i), Seconds(60 * (i + 1))));
        }
        return data;
    }
};

TEST_P(Keys, workOnTheListInAPanelThatAKeyHasOpened) {
    world.controller.toggle();
    view.window().resize(world.controller.frame().size().toSize());
    view.window().grabWindow();
    EXPECT_TRUE(world.window.focused);
    for (const Key& key : GetParam().keys) {
        press(view.window(), key.key, key.modifiers, key.text);
    }
    QStringList left;
    for (const ClipItem& one : world.store.clips()) {
        left.append(one.text + (one.pinned ? u"*"_s : QString()));
    }
    EXPECT_EQ(left.join(u' '), GetParam().clips.join(u' '));
    EXPECT_EQ(pasteboardText(), GetParam().pasteboard);
    EXPECT_EQ(world.controller.isOpen(), GetParam().open);
    EXPECT_EQ(world.window.focused, GetParam().open) << "the keyboard goes with the panel";
}

QStringList allBut(const QString& deleted) {
    QStringList all;
    for (int i = 0; i < 12; ++i) {
        all.append(QString::number(i));
    }
    all.removeOne(deleted);
    return all;
}

INSTANTIATE_TEST_SUITE_P(
    All, Keys,
    testing::Values(
        KeysCase{"returnCopiesTheFirst", {{Qt::Key_Return}}, allBut({}), u"0"_s, false},
        KeysCase{"arrowsMove",
                 {{Qt::Key_Up}, {Qt::Key_Down}, {Qt::Key_Down}, {Qt::Key_Up}, {Qt::Key_Return}},
                 allBut({}),
                 u"1"_s,
                 false},
        KeysCase{"pagesMove",
                 {{Qt::Key_PageDown}, {Qt::Key_PageDown}, {Qt::Key_PageDown}, {Qt::Key_Enter}},
                 allBut({}),
                 u"11"_s,
                 false},
        KeysCase{"pagesMoveBack",
                 {{Qt::Key_PageDown}, {Qt::Key_PageUp}, {Qt::Key_Return}},
                 allBut({}),
                 u"0"_s,
                 false},
        KeysCase{
            "controlDigitsCopy", {{Qt::Key_9, Qt::ControlModifier}}, allBut({}), u"8"_s, false},
        KeysCase{"deleteDeletes", {{Qt::Key_Down}, {Qt::Key_Delete}}, allBut(u"1"_s), {}, true},
        KeysCase{"deleteEditsASearch",
                 {{Qt::Key_1, {}, u"1"_s}, {Qt::Key_Home}, {Qt::Key_Delete}},
                 allBut({}),
                 {},
                 true},
        KeysCase{"aSearchStartsAtItsFirst",
                 {{Qt::Key_Down}, {Qt::Key_Down}, {Qt::Key_1, {}, u"1"_s}, {Qt::Key_Return}},
                 allBut({}),
                 u"1"_s,
                 false},
        KeysCase{"controlPPins",
                 {{Qt::Key_Down}, {Qt::Key_P, Qt::ControlModifier}},
                 {u"1*"_s, u"11"_s, u"10"_s, u"9"_s, u"8"_s, u"7"_s, u"6"_s, u"5"_s, u"4"_s, u"3"_s,
                  u"2"_s, u"0"_s}, // As the history sorts itself at a pin.
                 {},
                 true},
        KeysCase{"controlReturnOpensNoText",
                 {{Qt::Key_Return, Qt::ControlModifier}},
                 allBut({}),
                 {},
                 true},
        KeysCase{"controlFSearchesFromAnotherTab",
                 {{Qt::Key_Tab, Qt::ControlModifier},
                  {Qt::Key_F, Qt::ControlModifier},
                  {Qt::Key_7, {}, u"7"_s},
                  {Qt::Key_Return}},
                 allBut({}),
                 u"7"_s,
                 false},
        KeysCase{"escapeClearsThenCloses",
                 {{Qt::Key_5, {}, u"5"_s}, {Qt::Key_Escape}, {Qt::Key_Escape}},
                 allBut({}),
                 {},
                 false}),
    [](const auto& row) { return row.param.name; });

TEST_F(Panel, controlTabGoesThroughTheTabs) {
    world.controller.toggle();
    press(view.window(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Notes"_s);
    type(u"!"_s);
    EXPECT_TRUE(world.store.note().contains(u'!')) << "the note has the keyboard";
    press(view.window(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Clipboard"_s);
    press(view.window(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Shelf"_s);
    press(view.window(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(world.settings.lastTab(), u"Clipboard"_s);
}

TEST_F(Panel, keepsTheNoteWithEveryKey) {
    open();
    clickOn(u"tab1"_s);
    EXPECT_EQ(world.settings.lastTab(), u"Notes"_s);
    clickOn(u"noteInput"_s);
    EXPECT_TRUE(world.window.focused);
    press(view.window(), Qt::Key_End, Qt::ControlModifier);
    type(u"!"_s);
    EXPECT_EQ(world.store.note(), u"remember!"_s);
    world.scheduler.advance(Seconds(0.5));
    QFile file(world.store.fileURL());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(decodeStore(file.readAll()).value_or(StoreData()).note, u"remember!"_s);
}

TEST_F(Panel, keepsTheSearchWhileTheNoteIsLookedAt) {
    open();
    clickOn(u"searchInput"_s);
    type(u"second"_s);
    clickOn(u"tab1"_s);
    EXPECT_EQ(shown(u"searchInput"_s), nullptr);
    clickOn(u"tab0"_s);
    EXPECT_EQ(text(u"searchInput"_s), u"second"_s);
    EXPECT_EQ(view.host().clips()->count(), 1);
}

struct TabCase {
    const char* name;
    QString lastTab;
    QString shows;
};

class LastTab : public Panel, public testing::WithParamInterface<TabCase> {};

TEST_P(LastTab, isOpenedAgain) {
    close();
    world.settings.setLastTab(GetParam().lastTab);
    world.scheduler.advance(untilBuilt);
    open();
    EXPECT_NE(shown(GetParam().shows), nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, LastTab,
                         testing::Values(TabCase{"clipboard", u"Clipboard"_s, u"list"_s},
                                         TabCase{"notes", u"Notes"_s, u"noteInput"_s},
                                         TabCase{"shelf", u"Shelf"_s, u"dropCard"_s},
                                         TabCase{"none", {}, u"list"_s},
                                         TabCase{"unknown", u"Sketches"_s, u"list"_s}),
                         [](const auto& row) { return row.param.name; });

struct PasteCase {
    const char* name;
    void (*paste)(QQuickWindow& window, const QQuickItem& field);
    QString tab;
    QString field;
    QString pasted;
};

class PastingInto : public Panel, public testing::WithParamInterface<PasteCase> {
protected:
    void openField() {
        close();
        world.settings.setLastTab(GetParam().tab);
        world.scheduler.advance(untilBuilt);
        open();
        // What Qt itself would paste: a field that shows it has read the clipboard by itself.
        QGuiApplication::clipboard()->setText(u"read on the main thread"_s);
        clickOn(GetParam().field);
        QMetaObject::invokeMethod(item(GetParam().field), "selectAll");
    }
};

TEST_P(PastingInto, replacesTheSelectionByWhatTheOwnerAnswers) {
    openField();
    world.pasteboard.offerText(u"two\nlines"_s);
    GetParam().paste(view.window(), *item(GetParam().field));
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(text(GetParam().field), GetParam().pasted);
    type(u"+"_s);
    EXPECT_EQ(text(GetParam().field), GetParam().pasted + u'+') << "the cursor is elsewhere";
}

TEST_P(PastingInto, goesOnWhileTheOwnerIsSilent) {
    openField();
    type(u"typed"_s);
    world.pasteboard.offerSilence();
    GetParam().paste(view.window(), *item(GetParam().field));
    world.scheduler.advance(Seconds(30));
    press(view.window(), Qt::Key_End);
    type(u" on"_s);
    EXPECT_EQ(text(GetParam().field), u"typed on"_s);
}

void byKeys(QQuickWindow& window, const QQuickItem& /*field*/) {
    press(window, Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
}

void byOldKeys(QQuickWindow& window, const QQuickItem& /*field*/) {
    press(window, Qt::Key_Insert, Qt::ShiftModifier);
}

INSTANTIATE_TEST_SUITE_P(
    All, PastingInto,
    testing::Values(
        PasteCase{"searchByKeys", byKeys, u"Clipboard"_s, u"searchInput"_s, u"two lines"_s},
        PasteCase{"searchByOldKeys", byOldKeys, u"Clipboard"_s, u"searchInput"_s, u"two lines"_s},
        PasteCase{"noteByKeys", byKeys, u"Notes"_s, u"noteInput"_s, u"two\nlines"_s},
        PasteCase{"noteByOldKeys", byOldKeys, u"Notes"_s, u"noteInput"_s, u"two\nlines"_s}),
    [](const auto& row) { return row.param.name; });

TEST_F(Panel, theMiddleButtonPastesWhereItPoints) {
    open();
    world.pasteboard.offerText(u"pasted"_s);
    clickOn(u"searchInput"_s, Qt::MiddleButton);
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(text(u"searchInput"_s), u"pasted"_s);
    EXPECT_TRUE(world.window.focused);
}

TEST_F(Panel, anAnswerThatComesAfterTheFieldIsGoneIsDropped) {
    open();
    world.pasteboard.answerTime = Seconds(5);
    world.pasteboard.offerText(u"late"_s);
    clickOn(u"searchInput"_s);
    press(view.window(), Qt::Key_V, Qt::ControlModifier);
    close();
    world.scheduler.advance(Seconds(6));
    open();
    EXPECT_EQ(text(u"searchInput"_s), QString());
}

TEST_F(Panel, startsAndStopsATimerByItsControls) {
    open();
    clickOn(u"minutesMenu"_s);
    const QQuickItem* choice = in(u"minuteChoices"_s, u"item1"_s);
    click(view.window(), choice->mapToScene({20, 10}));
    clickOn(u"focusNote"_s);
    type(u" Estimates "_s);
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(world.store.timerLabel(), u"Estimates"_s);
    EXPECT_EQ(world.store.timerDuration(), 25 * 60);
    world.scheduler.advance(Seconds(61));
    EXPECT_EQ(text(u"runningTime"_s), u"23:59"_s);
    clickOn(u"stopTimer"_s);
    EXPECT_FALSE(world.store.timerRunning());
    EXPECT_EQ(text(u"focusNote"_s), QString());
    close();
    world.scheduler.advance(untilBuilt);
    open();
    EXPECT_EQ(find(item(u"minutesMenu"_s), u"choice"_s)->property("text"), u"25m"_s);
}

TEST_F(Panel, keepsReminders) {
    open();
    clickOn(u"reminderDraft"_s);
    type(u"  Call the framer about the mirror "_s);
    press(view.window(), Qt::Key_Return);
    type(u" "_s);
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList{u"Call the framer "_s});
    EXPECT_EQ(text(u"reminderDraft"_s), u" "_s) << "there was nothing to add";
    clickOn(u"reminderToggle"_s);
    click(view.window(), in(u"reminderQuestion"_s, u"yes"_s)->mapToScene({10, 10}));
    EXPECT_TRUE(world.store.reminderVisible());
    clickOn(u"removeReminder"_s);
    EXPECT_EQ(world.store.reminders(), QStringList());
}

TEST_F(Panel, keepsTheKeyboardWhereItIsSeenAroundTimersPresetsAndReminders) {
    open();
    clickOn(u"focusNote"_s);
    type(u"Report"_s);
    press(view.window(), Qt::Key_Return);
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(world.store.timerLabel(), u"Report"_s) << "one Return too many starts no other timer";
    press(view.window(), Qt::Key_Tab);
    EXPECT_TRUE(item(u"stopTimer"_s)->hasActiveFocus());
    press(view.window(), Qt::Key_Return);
    EXPECT_FALSE(world.store.timerRunning());

    clickOn(u"presetMenu"_s);
    clickMiddle(view.window(), in(u"presetChoices"_s, u"item6"_s));
    EXPECT_TRUE(item(u"preset0"_s)->hasActiveFocus());
    clickOn(u"addPreset"_s);
    type(u"Sketches"_s);
    EXPECT_EQ(view.host().focusControls()->presets().last(), u"Sketches"_s);
    press(view.window(), Qt::Key_Tab);
    press(view.window(), Qt::Key_Return);
    EXPECT_TRUE(item(u"removePreset4"_s)->hasActiveFocus()) << "on to the one before";
    press(view.window(), Qt::Key_Escape);

    world.store.setReminders({u"one"_s, u"two"_s});
    clickOn(u"reminderDraft"_s);
    press(view.window(), Qt::Key_Backtab);
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList{u"one"_s});
    press(view.window(), Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList());
    EXPECT_TRUE(item(u"reminderDraft"_s)->hasActiveFocus());
}

TEST_F(Panel, startsTheNightShiftAtOnceAndShutsDownOnlyWhenSure) {
    open();
    EXPECT_EQ(item(u"nightShift"_s)->property("tip").toString(),
              u"Turno da noite — apaga a tela em ~5s e trabalha no pendente"_s);
    EXPECT_EQ(item(u"power"_s)->property("tip").toString(), u"Shut down the Mac"_s);
    clickOn(u"nightShift"_s);
    clickOn(u"nightShift"_s);
    EXPECT_EQ(world.nightShift.starts, 2);
    clickOn(u"power"_s);
    EXPECT_EQ(text(u"powerQuestion"_s), u"Shut down the Mac?"_s);
    EXPECT_TRUE(in(u"powerQuestion"_s, u"no"_s)->hasActiveFocus());
    press(view.window(), Qt::Key_Return);
    EXPECT_TRUE(eventually([this] { return shown(u"powerQuestion"_s) == nullptr; }));
    EXPECT_EQ(world.shutDown.requests, 0);
    clickOn(u"power"_s);
    clickMiddle(view.window(), in(u"powerQuestion"_s, u"yes"_s));
    EXPECT_EQ(world.shutDown.requests, 1);
    EXPECT_TRUE(eventually([this] { return shown(u"powerQuestion"_s) == nullptr; }));
}

class PanelWithImages : public Panel {
public:
    PanelWithImages() : Panel(data()) {
        QImage green(40, 40, QImage::Format_RGB32);
        green.fill(Qt::green);
        EXPECT_TRUE(green.save(world.store.imagePath(u"there.png"_s)));
    }

    // Qt frees the texture of a picture that nobody shows with the next frame only.
    ~PanelWithImages() override {
        close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        view.window().releaseResources();
        view.window().grabWindow();
    }

    static StoreData data() {
        StoreData data;
        data.clips = {clip(u"Image"_s, Seconds(1), ClipKind::image),
                      clip(u"Image"_s, Seconds(2), ClipKind::image)};
        data.clips[0].imageFileName = u"there.png"_s;
        data.clips[1].imageFileName = u"missing.png"_s;
        return data;
    }

    QRgb pixelOfTile(const QString& card) {
        const QQuickItem* tile = find(item(card), u"tile"_s);
        return view.window().grabWindow().pixel(tile->mapToScene({3, 14}).toPoint());
    }
};

TEST_F(PanelWithImages, showsAnImageOnceItIsDecodedAndASymbolWhereItCannotBe) {
    open();
    EXPECT_TRUE(eventually([this] { return pixelOfTile(u"card0"_s) == QColor(Qt::green).rgb(); }));
    EXPECT_FALSE(find(item(u"card0"_s), u"symbol"_s)->isVisible());
    EXPECT_TRUE(find(item(u"card1"_s), u"symbol"_s)->isVisible());
    clickOn(u"card0"_s);
    world.scheduler.advance(Seconds(0)); // It is read off the main thread.
    EXPECT_FALSE(world.pasteboard.bytes("image/png"_L1).isEmpty());
}

} // namespace

} // namespace ravelo
