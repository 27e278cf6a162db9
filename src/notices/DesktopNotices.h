#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "notices/PlanAlerts.h"

#include <QObject>
#include <QSet>
#include <QUrl>

#include <functional>

namespace ravelo {

class AppSettings;
class Notices;
class Notifier;
class PlanUsage;
class Preferences;

/// Decides which desktop notifications are shown: those that the user has turned on, none while the
/// screen is locked, and none that names a clip, a file or a note. Main thread.
class DesktopNotices : public QObject {
    Q_OBJECT

public:
    /// All outlive it.
    struct Services {
        Notifier& notifier;
        const AppSettings& settings;
        Preferences& preferences; ///< Keeps what of the plan the user was notified of.
        Scheduler& scheduler;
        const PlanUsage& plan;
        const Notices& notices;
        std::function<bool()> isLocked;
    };

    explicit DesktopNotices(Services services);

    /// Starts a timer with the label of the last one.
    std::function<void(double minutes)> onStartTimer;

    /// A focus timer of this length has ended.
    void timerEnded(double minutes);

    enum class Arrivals { goOn, over };

    /// The files received so far. One notification when no more come for now.
    void filesReceived(const QList<QUrl>& files, Arrivals arrivals);

    /// Shows what is still true.
    void screenUnlocked();

private:
    void followPlan();
    void followNotices();
    void beginPlan();
    /// When to look again, if the user waits for a reset.
    std::optional<Date> follow(const QString& name, const QString& key,
                               const std::optional<UsageWindow>& window);
    void show(PlanNews news, const QString& name, const QString& key,
              const std::optional<UsageWindow>& window);
    [[nodiscard]] bool mayShow(bool wanted) const;

    Services services_;
    QSet<QUrl> received_;       ///< What was there before.
    bool failureShown_ = false; ///< That saving fails.
    Handle nextReset_;
};

} // namespace ravelo
