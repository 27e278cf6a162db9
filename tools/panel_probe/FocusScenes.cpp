#include "Stage.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

void showReminders(Stage& stage) {
    stage.world.store.setReminders({u"Call the framer"_s, u"Send estimate"_s});
    stage.world.store.setReminderOpen(true);
}

void openPresets(Stage& stage) {
    stage.hand.click(u"presetMenu"_s);
    settle(Milliseconds(300));
    stage.hand.point(u"presetChoices/item1"_s);
}

void openMinutes(Stage& stage) {
    stage.hand.click(u"minutesMenu"_s);
    settle(Milliseconds(300));
    stage.hand.point(u"minuteChoices/item8"_s);
}

} // namespace

Scenes focusScenes() {
    return {
        {u"running"_s,
         [](Stage& stage) { stage.world.store.startTimer(u"Estimates"_s, (24 * 60 + 12.5) / 60); },
         showReminders},
        {u"narrow"_s, [](Stage& stage) { stage.world.settings.panelWidth.set(560); },
         showReminders},
        {u"reminders"_s, nothing,
         [](Stage& stage) {
             showReminders(stage);
             settle(Milliseconds(100));
             stage.hand.click(u"reminderToggle"_s);
         }},
        {u"presets"_s, nothing, openPresets},
        {u"presets-key"_s, nothing,
         [](Stage& stage) {
             stage.hand.item(u"presetMenu"_s).forceActiveFocus();
             stage.hand.press(Qt::Key_Return);
             settle(Milliseconds(300));
             stage.hand.press(Qt::Key_Down);
             stage.hand.press(Qt::Key_Down);
         }},
        {u"preset-editor"_s, nothing,
         [](Stage& stage) {
             openPresets(stage);
             stage.hand.click(u"presetChoices/item6"_s);
             settle(Milliseconds(300));
             stage.hand.click(u"preset1"_s);
         }},
        {u"minutes"_s, nothing, openMinutes},
        {u"custom-minutes"_s, nothing,
         [](Stage& stage) {
             openMinutes(stage);
             stage.hand.click(u"minuteChoices/item8"_s);
         }},
    };
}

} // namespace ravelo
