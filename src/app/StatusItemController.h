#pragma once

#include "base/Date.h"

#include <QLocale>

#include <functional>

namespace ravelo {

class LiveContext;
class NotchController;
class Scheduler;
class StatusItem;

/// The program's item in the bar of the desktop: its menu, and a tooltip with how full the context
/// of the newest session is. Main thread.
class StatusItemController {
public:
    struct Services {
        StatusItem& item;
        NotchController& notch;
        LiveContext& context; ///< Its `onChange` is taken.
        Scheduler& scheduler;
        std::function<void()> checkUpdates;
        std::function<void()> quit;
    };

    /// They outlive it.
    StatusItemController(Services services, const QLocale& locale);
    ~StatusItemController();
    StatusItemController(const StatusItemController&) = delete;
    StatusItemController& operator=(const StatusItemController&) = delete;

    std::function<void()> onSettings;

    /// Run by the row that shows the setup of the first start again.
    std::function<void()> onSetup;

    void updateTitle();

private:
    Services services_;
    QLocale locale_;
};

} // namespace ravelo
