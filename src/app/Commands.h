#pragma once

#include "base/Result.h"
#include "platform/Answer.h"

#include <QStringList>

#include <functional>

namespace ravelo {

class LiveContext;
class NotchController;
class PlanUsage;
class Scheduler;
class Store;

/// What the running program can be asked for by another start of it. A request is the words of the
/// command line after the program's name, but for these: "show", "restore", "toggle", "settings",
/// "setup", "updates", "quit", "status", and "open" with the absolute paths or file URLs of what to
/// park. Main thread.
class Commands {
public:
    struct Services {
        Store& store;
        NotchController& notch;
        Scheduler& scheduler;
        const LiveContext& context;
        const PlanUsage& usage;
        std::function<void()> showSetup;
        std::function<void()> checkUpdates;
        std::function<void()> quit; ///< Later than at once: who asks for it wants an answer.
    };

    explicit Commands(Services services);

    /// An error where the request makes no sense, whoever is asked.
    [[nodiscard]] static Result<void> check(const QStringList& request);

    [[nodiscard]] Answer answer(const QStringList& request) const;

private:
    Services services_;
};

} // namespace ravelo
