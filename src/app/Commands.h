#pragma once

#include "base/Result.h"
#include "monitor/StatusText.h"
#include "platform/Answer.h"

#include <QStringList>

#include <functional>

namespace ravelo {

class CapturePause;
class LiveContext;
class NotchController;
class PlanUsage;
class Scheduler;
class Store;

/// Answers requests of other instances. A request is the words of the command line after the
/// program's name, or one of "show", "restore", "toggle", "settings", "setup", "updates", "quit",
/// "status", and "open" with the absolute paths or file URLs of files to park. Main thread.
class Commands {
public:
    using Reply = std::function<void(const Answer&)>;

    struct Services {
        Store& store;
        CapturePause& pause;
        NotchController& notch;
        Scheduler& scheduler;
        const LiveContext& context;
        const PlanUsage& usage;
        std::function<StatusChoice()> statusChoice;
        std::function<std::optional<OtherPlan>()> secondPlan;
        std::function<void()> showSetup;
        std::function<void()> checkUpdates;
        std::function<void()> quit; ///< Not at once: the sender waits for the answer.
        std::function<void(const QString& path, Reply)> exportTo = {};
        std::function<void(const QString& path, Reply)> importFrom = {};
        std::function<void(Reply)> erase = {};
    };

    explicit Commands(Services services);

    /// An error if the request is invalid in any state.
    [[nodiscard]] static Result<void> check(const QStringList& request);

    /// For `activationToken` see PanelWindow::requestFocus.
    [[nodiscard]] Answer answer(const QStringList& request,
                                const QByteArray& activationToken = {}) const;

    /// Whether it is one of the requests that take time; those call `reply` once, later or at once.
    [[nodiscard]] bool answerLater(const QStringList& request, const Reply& reply) const;

private:
    Services services_;
};

} // namespace ravelo
