#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace ravelo {

/// Makes one program out of all its starts in a user's session: by a name on the session bus, where
/// it speaks org.freedesktop.Application (Desktop Entry Specification, D-Bus Activation), or by a
/// lock file and a local socket where there is no bus. Main thread.
class SingleInstance {
public:
    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    virtual ~SingleInstance() = default;

    /// Becomes the one of this session; nothing where there is one already.
    [[nodiscard]] static std::unique_ptr<SingleInstance> claim();

    /// Asks the one that runs: to show itself where `action` is empty, else to do the action.
    /// False where none runs or it does not answer. Waits a few seconds at most.
    [[nodiscard]] static bool send(const QString& action);

    /// What other starts ask for, from the event loop.
    std::function<void(const QString& action)> onAction;
};

} // namespace ravelo
