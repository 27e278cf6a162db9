#pragma once

#include "base/Handle.h"

#include <QList>
#include <QString>

#include <functional>

namespace ravelo {

/// What a notification says. Plain text without markup.
struct Notification {
    struct Action {
        QString label;
        std::function<void()> run;
    };

    QString key; ///< A newer one with the same key replaces this one.
    QString title;
    QString text;
    QList<Action> actions; ///< Left out if the desktop has none.
};

/// The desktop's notifications. Main thread; never blocks.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Shows it, or does nothing if the desktop has no notifications. Starts their service if
    /// needed. An action runs once, while this object lives.
    virtual void show(const Notification& notification) = 0;

    /// Whether the desktop has notifications. `done` is called once, within a few seconds; not
    /// after the handle was dropped.
    [[nodiscard]] virtual Handle look(std::function<void(bool available)> done) = 0;
};

} // namespace ravelo
