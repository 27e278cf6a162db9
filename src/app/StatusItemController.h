#pragma once

#include "base/Date.h"
#include "platform/StatusItem.h"

#include <QCoreApplication>
#include <QLocale>
#include <QObject>

#include <functional>

namespace ravelo {

class AppSettings;
class CapturePause;
class LiveContext;
class NotchController;
class PlanUsage;
class Scheduler;
class SecondPlan;

/// The program's item in the bar of the desktop: its menu, whose keys work in all windows of the
/// program, and a tooltip with how full the context of the newest session is, and the plan if it
/// will be full before its reset. Main thread.
class StatusItemController : public QObject {
    Q_DECLARE_TR_FUNCTIONS(ravelo::StatusItemController)

public:
    struct Services {
        StatusItem& item;
        NotchController& notch;
        CapturePause& pause;
        LiveContext& context; ///< This sets its `onChange`.
        PlanUsage& plan;
        SecondPlan& second;
        Scheduler& scheduler;
        const AppSettings& settings;
        std::function<void()> checkUpdates;
        std::function<void()> quit;
    };

    /// They outlive it.
    StatusItemController(Services services, const QLocale& locale);
    ~StatusItemController() override;

    std::function<void()> onSettings;

    /// Run by the row that shows the setup of the first start again.
    std::function<void()> onSetup;

    void updateTitle();

    bool eventFilter(QObject* target, QEvent* event) override;

private:
    [[nodiscard]] QList<StatusItem::Row> ownRows();
    [[nodiscard]] QList<StatusItem::Row> pauseRows();
    [[nodiscard]] StatusItem::Icon icon() const;
    void followPause();
    [[nodiscard]] QString usualToolTip() const;

    Services services_;
    QLocale locale_;
    QList<StatusItem::Row> menu_;
};

} // namespace ravelo
