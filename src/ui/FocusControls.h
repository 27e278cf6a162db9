#pragma once

#include "timer/FocusChoices.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class Preferences;
class Store;

/// What the panel's controls of the focus timer and the reminders do. Main thread.
class FocusControls : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(double minutes READ minutes WRITE setMinutes NOTIFY changed)
    Q_PROPERTY(QString minutesLabel READ minutesText NOTIFY changed)
    Q_PROPERTY(QStringList presets READ presets NOTIFY changed)

public:
    FocusControls(Store& store, Preferences& preferences);

    [[nodiscard]] double minutes() const { return choices_.minutes; }

    void setMinutes(double minutes);

    [[nodiscard]] QString minutesText() const { return minutesLabel(choices_.minutes); }

    [[nodiscard]] QStringList presets() const { return choices_.presets; }

    /// Reads anew what is kept.
    void reload();

    /// What somebody typed; all stays as it is where that is no length.
    Q_INVOKABLE void applyCustomMinutes(const QString& typed);

    Q_INVOKABLE void setPreset(int index, const QString& text);
    Q_INVOKABLE void removePreset(int index);
    Q_INVOKABLE void addPreset();

    Q_INVOKABLE void startFocus(const QString& note);

    /// False where nothing is left of what was typed.
    Q_INVOKABLE bool addReminder(const QString& typed);
    Q_INVOKABLE void removeReminder(int index);

Q_SIGNALS:
    void changed();

private:
    void setPresets(const QStringList& presets);

    Store& store_;
    Preferences& preferences_;
    FocusChoices choices_;
};

} // namespace ravelo
