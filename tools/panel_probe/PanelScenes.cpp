// The panel itself: closed, as a bar, open, and on a small screen.

#include "SampleData.h"
#include "Stage.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

void setReminders(Stage& stage, const QStringList& reminders) {
    stage.world.store.setReminders(reminders);
    stage.world.store.setReminderOpen(true);
}

void prepareSmall(Stage& stage) {
    setReminders(stage, {u"Call the framer"_s});
}

/// The closed panel as a bar with what `name` lists.
void prepareBar(const QString& name, Stage& stage) {
    PanelWorld& world = stage.world;
    const bool notch = name.contains(u"notch"_s);
    world.screens.screens.front().visibleFrame.setTop(notch ? 32 : 28);
    world.settings.macType.set(notch ? u"notch"_s : u"none"_s);
    if (name.contains(u"timer"_s)) {
        constexpr double left = 24 * 60 + 12.5;
        constexpr double length = left / 0.62;
        world.store.startTimer(u"Estimates"_s, length / 60);
        world.scheduler.advance(Seconds(length - left));
    }
    if (name.contains(u"reminders"_s)) {
        setReminders(stage, {u"Call the framer"_s, u"Send estimate"_s,
                             notch ? u"Order the veneer"_s : u"Order veneer"_s});
    }
    if (name.contains(u"paused"_s)) {
        world.pause.pause({});
    }
}

} // namespace

Scenes barScenes() {
    Scenes scenes{
        {u"handle"_s, nothing, {}},
        {u"handle-paused"_s, [](Stage& stage) { stage.world.pause.pause({}); }, {}},
    };
    for (const QString& shown : {u"-timer"_s, u"-reminders"_s, u"-timer-reminders"_s}) {
        for (const QString& paused : {u""_s, u"-paused"_s}) {
            for (const QString& notch : {u""_s, u"-notch"_s}) {
                const QString name = u"bar"_s + shown + paused + notch;
                scenes.append({name, [name](Stage& stage) { prepareBar(name, stage); }, {}});
            }
        }
    }
    return scenes;
}

Scenes panelScenes() {
    return {
        {u"full-black"_s, nothing,
         [](Stage& stage) {
             stage.world.settings.fullBlack.set(true);
         }},
        {u"plan-pace"_s, nothing,
         [](Stage& stage) {
             stage.hand.point(QPointF(80, 90));
             settle(Milliseconds(800));
         }},
        {u"power"_s, nothing,
         [](Stage& stage) {
             setReminders(stage, {u"Call the framer"_s, u"Send estimate"_s});
             settle(Milliseconds(100));
             stage.hand.click(u"power"_s);
         }},
        {u"small"_s, prepareSmall, nothing},
        {u"small-scrolled"_s, prepareSmall,
         [](Stage& stage) {
             stage.hand.item(u"list"_s).setProperty("contentY", 54);
         }},
    };
}

} // namespace ravelo
