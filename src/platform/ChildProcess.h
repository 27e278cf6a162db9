#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>

#include <functional>

namespace ravelo {

/// Programs whose end matters. Main thread, which never waits for one.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;

    /// Starts the program at `path` with these arguments, as they are and through no shell, and
    /// calls `done` once, later, when it has ended or could not be started. It has nothing to read,
    /// what it writes is dropped, and it runs in an empty folder of its own. If the handle is
    /// dropped `done` is not called and the program goes on by itself.
    [[nodiscard]] virtual Handle run(const QByteArray& path, const QList<QByteArray>& arguments,
                                     std::function<void()> done) = 0;
};

} // namespace ravelo
