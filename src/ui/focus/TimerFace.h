#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace ravelo {

class Scheduler;
class Store;

/// How the running timer is shown. Updates once a second, when the figure changes, and only while
/// visible. Main thread.
class TimerFace : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    /// Set by the view: it is visible.
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(QString remaining READ remaining NOTIFY changed)
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)

public:
    /// Both outlive this.
    TimerFace(const Store& store, Scheduler& scheduler);

    [[nodiscard]] bool shown() const { return shown_; }

    void setShown(bool shown);

    /// "24:12"
    [[nodiscard]] QString remaining() const { return remaining_; }

    /// Remaining part of the timer's length, 0 to 1.
    [[nodiscard]] double fraction() const { return fraction_; }

Q_SIGNALS:
    void shownChanged();
    void changed();

private:
    void refresh();

    const Store& store_;
    Scheduler& scheduler_;
    bool shown_ = false;
    QString remaining_;
    double fraction_ = 0;
    Handle tick_;
};

} // namespace ravelo
