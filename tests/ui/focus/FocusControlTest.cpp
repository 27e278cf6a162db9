// The controls of the focus timer and the reminders in the panel.

#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

TEST_F(Panel, startsAndStopsATimerByItsControls) {
    open();
    clickOn(u"minutesMenu"_s);
    clickIn(u"minuteChoices"_s, u"item1"_s);
    clickOn(u"focusNote"_s);
    type(u" Estimates "_s);
    press(Qt::Key_Return);
    EXPECT_EQ(world.store.timerLabel(), u"Estimates"_s);
    EXPECT_EQ(world.store.timerDuration(), 25 * 60);
    world.scheduler.advance(Seconds(61));
    EXPECT_EQ(text(u"runningTime"_s), u"23:59"_s);
    clickOn(u"stopTimer"_s);
    EXPECT_FALSE(world.store.timerRunning());
    EXPECT_EQ(text(u"focusNote"_s), QString());
    rebuild();
    open();
    EXPECT_EQ(find(item(u"minutesMenu"_s), u"choice"_s)->property("text"), u"25m"_s);
}

TEST_F(Panel, saysWhyMinutesAreNotTaken) {
    open();
    for (const auto& [keys, says] :
         {std::pair(u"0 Return"_s, u"Minutes are a whole number from 1"_s),
          {u"Delete Return"_s, QString()},
          {u"4 5 Return"_s, QString()}}) {
        clickOn(u"minutesMenu"_s);
        clickIn(u"minuteChoices"_s, u"item8"_s);
        item(u"minutesInput"_s);
        pressKeys(keys);
        EXPECT_TRUE(eventually([this] { return shown(u"minutesInput"_s) == nullptr; }));
        EXPECT_EQ(toast(), says) << qPrintable(keys);
        world.scheduler.advance(Seconds(2));
    }
    EXPECT_EQ(view.features().focus.minutesText(), u"45m"_s);
}

TEST_F(Panel, keepsReminders) {
    open();
    clickOn(u"reminderDraft"_s);
    type(u"  Call the framer about the mirror "_s);
    press(Qt::Key_Return);
    type(u" "_s);
    press(Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList{u"Call the framer "_s});
    EXPECT_EQ(text(u"reminderDraft"_s), u" "_s) << "there was nothing to add";
    clickOn(u"reminderToggle"_s);
    clickIn(u"reminderQuestion"_s, u"yes"_s);
    EXPECT_TRUE(world.store.reminderVisible());
    clickOn(u"removeReminder"_s);
    EXPECT_EQ(world.store.reminders(), QStringList());
}

TEST_F(Panel, keepsTheKeyboardWhereItIsSeenAroundTimersPresetsAndReminders) {
    open();
    clickOn(u"focusNote"_s);
    type(u"Report"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(world.store.timerLabel(), u"Report"_s) << "one Return too many starts no other timer";
    press(Qt::Key_Tab);
    EXPECT_TRUE(item(u"stopTimer"_s)->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_FALSE(world.store.timerRunning());

    clickOn(u"presetMenu"_s);
    clickIn(u"presetChoices"_s, u"item6"_s);
    EXPECT_TRUE(item(u"preset0"_s)->hasActiveFocus());
    clickOn(u"addPreset"_s);
    type(u"Sketches"_s);
    EXPECT_EQ(view.features().focus.presets().last(), u"Sketches"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_TRUE(item(u"removePreset4"_s)->hasActiveFocus()) << "on to the one before";
    press(Qt::Key_Escape);

    world.store.setReminders({u"one"_s, u"two"_s});
    clickOn(u"reminderDraft"_s);
    press(Qt::Key_Backtab);
    press(Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList{u"one"_s});
    press(Qt::Key_Return);
    EXPECT_EQ(world.store.reminders(), QStringList());
    EXPECT_TRUE(item(u"reminderDraft"_s)->hasActiveFocus());
}

} // namespace

} // namespace ravelo
