#pragma once

#include "base/Handle.h"

#include <QLocale>
#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class CapturePause;
class Scheduler;
class Toast;

/// The capture pause as shown in the panel. Main thread.
class Pausing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool paused READ isPaused NOTIFY changed)
    /// What remains: "12 min", "50 sec", or "Paused".
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    /// Time of day at which it ends; empty if only the user ends it.
    Q_PROPERTY(QString until READ until NOTIFY changed)
    /// Length in minutes as chosen; 0 if only the user ends it.
    Q_PROPERTY(double minutes READ minutes NOTIFY changed)

public:
    /// All outlive this.
    struct Services {
        CapturePause& pause;
        Scheduler& scheduler;
        Toast& toast;
    };

    Pausing(Services services, const QLocale& locale);

    [[nodiscard]] bool isPaused() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString until() const;
    [[nodiscard]] double minutes() const;

    /// Updates `text` only while it is visible.
    void setShown(bool shown);

    /// For this many minutes; 0 for until resumed.
    Q_INVOKABLE void pause(double minutes);
    Q_INVOKABLE void resume();
    Q_INVOKABLE void ignoreNext();

Q_SIGNALS:
    void changed();
    void textChanged();

private:
    void refresh();

    Services services_;
    QLocale locale_;
    bool shown_ = false;
    Handle tick_;
};

/// "10:57", as the locale writes it.
[[nodiscard]] QString pauseEnd(const CapturePause& pause, const QLocale& locale);

} // namespace ravelo
