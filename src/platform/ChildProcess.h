#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>

#include <functional>

namespace ravelo {

/// Programs whose exit matters. Main thread; never blocks.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;

    /// Starts the program at `path` with these arguments, without a shell, and calls `done` once,
    /// later, when it has exited or could not be started. Its input is empty, its output is
    /// discarded, and it runs in an empty folder of its own. If the handle is dropped, `done` is
    /// not called and the program keeps running.
    [[nodiscard]] virtual Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                                     std::function<void()> done) = 0;
};

} // namespace ravelo
