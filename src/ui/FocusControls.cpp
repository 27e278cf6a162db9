#include "ui/FocusControls.h"

#include "store/Store.h"

namespace ravelo {

using namespace Qt::StringLiterals;

FocusControls::FocusControls(Store& store, Preferences& preferences)
    : store_(store), preferences_(preferences), choices_(FocusChoices::load(preferences)) {}

void FocusControls::setMinutes(double minutes) {
    if (minutes != choices_.minutes) {
        choices_.minutes = minutes;
        choices_.keepMinutes(preferences_);
        Q_EMIT changed();
    }
}

void FocusControls::reload() {
    choices_ = FocusChoices::load(preferences_);
    Q_EMIT changed();
}

void FocusControls::applyCustomMinutes(const QString& typed) {
    if (const auto minutes = customMinutes(typed)) {
        setMinutes(*minutes);
    }
}

void FocusControls::setPreset(int index, const QString& text) {
    QStringList presets = choices_.presets;
    if (index >= 0 && index < presets.size() && presets[index] != text) {
        presets[index] = text;
        setPresets(presets);
    }
}

void FocusControls::removePreset(int index) {
    QStringList presets = choices_.presets;
    if (index >= 0 && index < presets.size()) {
        presets.removeAt(index);
        setPresets(presets);
    }
}

void FocusControls::addPreset() {
    setPresets(QStringList(choices_.presets) << u"New"_s);
}

void FocusControls::startFocus(const QString& note) {
    store_.startTimer(note, choices_.minutes);
}

bool FocusControls::addReminder(const QString& typed) {
    const auto texts = Reminders{store_.reminderOpen(), store_.reminders()}.added(typed);
    if (texts) {
        store_.setReminders(*texts);
    }
    return texts.has_value();
}

void FocusControls::removeReminder(int index) {
    QStringList texts = store_.reminders();
    if (index >= 0 && index < texts.size()) {
        texts.removeAt(index);
        store_.setReminders(texts);
    }
}

void FocusControls::setPresets(const QStringList& presets) {
    choices_.presets = presets;
    choices_.keepPresets(preferences_);
    Q_EMIT changed();
}

} // namespace ravelo
