#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

namespace ravelo {

/// Other programs of this machine. Main thread; nothing here waits.
class Programs {
public:
    virtual ~Programs() = default;

    /// Looks for the first of `names` that is installed (in PATH) and calls `done` once, later,
    /// with where it is, or with an empty path. Not where the handle was dropped.
    [[nodiscard]] virtual Handle find(const QStringList& names,
                                      std::function<void(QByteArray path)> done) = 0;

    /// Starts the program with these arguments, as they are and through no shell. It lives on by
    /// itself; whether it could be started is not told.
    virtual void start(const QByteArray& path, const QList<QByteArray>& arguments) = 0;
};

} // namespace ravelo
