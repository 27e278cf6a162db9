#pragma once

#include "base/Handle.h"
#include "base/Secret.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

class QObject;

namespace ravelo {

/// A short run of a program for the sake of its output.
struct ProgramRun {
    QString path;
    QStringList arguments;
    QProcessEnvironment environment;
    Secret input; ///< At most 64 KiB, the size of a pipe. Our copy in the pipe is the only one.
    std::chrono::milliseconds timeout;
    qint64 maxOutput = 0; ///< Bytes; a program that prints more is killed.
};

/// Runs it in "/", without core dumps; its errors go to /dev/null. Calls `done` once, later: with
/// the standard output, or with nothing if the program did not start, failed, took too long or
/// printed too much. Dropping the handle kills it. The child belongs to `owner`, whose destructor
/// waits for it if it still runs; without one it may outlive this program. Main thread.
[[nodiscard]] Handle runProgram(const ProgramRun& run, QObject* owner,
                                std::function<void(std::optional<QByteArray>)> done);

} // namespace ravelo
