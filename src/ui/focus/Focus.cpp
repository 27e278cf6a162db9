#include "ui/focus/Focus.h"

#include "store/Store.h"

namespace ravelo {

using namespace Qt::StringLiterals;

Focus::Focus(Store& store, Preferences& preferences, Scheduler& scheduler)
    : store_(store),
      preferences_(preferences),
      choices_(FocusChoices::load(preferences)),
      face_(store, scheduler) {
    connect(&store, &Store::timerChanged, this, &Focus::timerChanged);
    connect(&store, &Store::remindersChanged, this, &Focus::remindersChanged);
}

bool Focus::timerRunning() const {
    return store_.timerRunning();
}

QString Focus::timerLabel() const {
    return store_.timerLabel();
}

QStringList Focus::reminders() const {
    return store_.reminders();
}

bool Focus::reminderOpen() const {
    return store_.reminderOpen();
}

bool Focus::reminderVisible() const {
    return store_.reminderVisible();
}

void Focus::setReminderOpen(bool open) {
    store_.setReminderOpen(open);
}

void Focus::stopTimer() {
    store_.stopTimer();
}

void Focus::setMinutes(double minutes) {
    if (minutes != choices_.minutes) {
        choices_.minutes = minutes;
        choices_.keepMinutes(preferences_);
        Q_EMIT changed();
    }
}

void Focus::reload() {
    choices_ = FocusChoices::load(preferences_);
    Q_EMIT changed();
}

void Focus::applyCustomMinutes(const QString& typed) {
    if (const auto minutes = customMinutes(typed)) {
        setMinutes(*minutes);
    } else if (!typed.trimmed().isEmpty()) {
        Q_EMIT minutesRefused();
    }
}

void Focus::setPreset(int index, const QString& text) {
    QStringList presets = choices_.presets;
    if (index >= 0 && index < presets.size() && presets[index] != text) {
        presets[index] = text;
        setPresets(presets);
    }
}

void Focus::removePreset(int index) {
    QStringList presets = choices_.presets;
    if (index >= 0 && index < presets.size()) {
        presets.removeAt(index);
        setPresets(presets);
    }
}

void Focus::addPreset() {
    setPresets(QStringList(choices_.presets) << tr("New"));
}

void Focus::startFocus(const QString& note) {
    store_.startTimer(note, choices_.minutes);
}

bool Focus::addReminder(const QString& typed) {
    const auto texts = Reminders{store_.reminderOpen(), store_.reminders()}.added(typed);
    if (texts) {
        store_.setReminders(*texts);
    }
    return texts.has_value();
}

void Focus::removeReminder(int index) {
    QStringList texts = store_.reminders();
    if (index >= 0 && index < texts.size()) {
        texts.removeAt(index);
        store_.setReminders(texts);
    }
}

void Focus::setPresets(const QStringList& presets) {
    choices_.presets = presets;
    choices_.keepPresets(preferences_);
    Q_EMIT changed();
}

} // namespace ravelo
