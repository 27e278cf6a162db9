#pragma once

#include "timer/FocusChoices.h"
#include "ui/focus/TimerFace.h"

namespace ravelo {

class Preferences;

/// The focus timer and the reminders. Main thread.
class Focus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(double minutes READ minutes WRITE setMinutes NOTIFY changed)
    Q_PROPERTY(QString minutesLabel READ minutesText NOTIFY changed)
    Q_PROPERTY(QStringList presets READ presets NOTIFY changed)
    Q_PROPERTY(bool timerRunning READ timerRunning NOTIFY timerChanged)
    Q_PROPERTY(QString timerLabel READ timerLabel NOTIFY timerChanged)
    Q_PROPERTY(ravelo::TimerFace* face READ face CONSTANT)
    Q_PROPERTY(QStringList reminders READ reminders NOTIFY remindersChanged)
    Q_PROPERTY(bool reminderOpen READ reminderOpen WRITE setReminderOpen NOTIFY remindersChanged)
    Q_PROPERTY(bool reminderVisible READ reminderVisible NOTIFY remindersChanged)

public:
    /// All outlive this.
    Focus(Store& store, Preferences& preferences, Scheduler& scheduler);

    [[nodiscard]] double minutes() const { return choices_.minutes; }

    void setMinutes(double minutes);

    [[nodiscard]] QString minutesText() const { return minutesLabel(choices_.minutes); }

    [[nodiscard]] QStringList presets() const { return choices_.presets; }

    [[nodiscard]] bool timerRunning() const;
    [[nodiscard]] QString timerLabel() const;

    [[nodiscard]] TimerFace* face() { return &face_; }

    [[nodiscard]] QStringList reminders() const;
    [[nodiscard]] bool reminderOpen() const;
    [[nodiscard]] bool reminderVisible() const;

    void setReminderOpen(bool open);

    /// Reloads what is stored.
    void reload();

    /// Text typed by the user; ignored if it is not a valid length.
    Q_INVOKABLE void applyCustomMinutes(const QString& typed);

    Q_INVOKABLE void setPreset(int index, const QString& text);
    Q_INVOKABLE void removePreset(int index);
    Q_INVOKABLE void addPreset();

    Q_INVOKABLE void startFocus(const QString& note);
    Q_INVOKABLE void stopTimer();

    /// False if nothing is left after trimming.
    Q_INVOKABLE bool addReminder(const QString& typed);
    Q_INVOKABLE void removeReminder(int index);

Q_SIGNALS:
    void changed();
    void timerChanged();
    void remindersChanged();
    /// What was typed is no length.
    void minutesRefused();

private:
    void setPresets(const QStringList& presets);

    Store& store_;
    Preferences& preferences_;
    FocusChoices choices_;
    TimerFace face_;
};

} // namespace ravelo
