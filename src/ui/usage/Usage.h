#pragma once

#include "base/Handle.h"
#include "ui/lists/RelativeDate.h"
#include "ui/usage/UsageLine.h"

namespace ravelo {

class AppSettings;
class NotchController;
class PlanUsage;
class Scheduler;

/// Plan usage as shown in the panel. Updated while the panel is open. Main thread.
class Usage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::UsageLine session READ session NOTIFY changed)
    Q_PROPERTY(ravelo::UsageLine week READ week NOTIFY changed)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)

public:
    /// All outlive this.
    struct Services {
        PlanUsage& plan;
        const NotchController& controller;
        const AppSettings& settings;
        Scheduler& scheduler;
    };

    Usage(Services services, const QLocale& locale);

    [[nodiscard]] UsageLine session() const { return session_; }

    [[nodiscard]] UsageLine week() const { return week_; }

    /// Whether to show it at all.
    [[nodiscard]] bool isShown() const;

    /// Whether Claude Code is installed.
    void setInstalled(bool installed);

    void refresh();

    /// A line about it; empty if there is none.
    void setSecondAccount(const QString& line) { second_ = line; }

    /// For a tooltip, as it is now: the pace of a window, and how old its figures are.
    [[nodiscard]] Q_INVOKABLE QStringList sessionNotes() const;
    [[nodiscard]] Q_INVOKABLE QStringList weekNotes() const;

Q_SIGNALS:
    void changed();
    void shownChanged();

private:
    void refreshIfOpen();
    void awaitNextText();
    [[nodiscard]] PacedWindow pacedSession() const;
    [[nodiscard]] PacedWindow pacedWeek() const;
    [[nodiscard]] QStringList notes(const PacedWindow& paced) const;

    Services services_;
    RelativeDate relative_;
    bool installed_ = true;
    UsageLine session_;
    UsageLine week_;
    QString second_;
    Handle nextText_;
};

} // namespace ravelo
