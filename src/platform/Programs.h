#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

namespace ravelo {

/// Other installed programs. Main thread; never blocks.
class Programs {
public:
    virtual ~Programs() = default;

    /// Looks for the first of `names` that is installed (in PATH) and calls `done` once, later,
    /// with its path, or an empty one. Not called if the handle was dropped.
    [[nodiscard]] virtual Handle find(const QStringList& names,
                                      std::function<void(QByteArray path)> done) = 0;

    /// Starts the program with these arguments, without a shell, and lets it run. Failures are not
    /// reported.
    virtual void start(const QByteArray& path, const QList<QByteArray>& arguments) = 0;
};

} // namespace ravelo
