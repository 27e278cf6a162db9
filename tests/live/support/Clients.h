#pragma once

#include "support/Eventually.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include <functional>
#include <memory>

namespace ravelo::live {

/// Another X client; ends with this object, or with the program at the latest.
class Client {
public:
    Client(const QString& program, const QStringList& arguments, const QByteArray& input = {});
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;
    ~Client();

    /// Runs the event loop until the client has written another line, and returns it.
    [[nodiscard]] QByteArray readLine();

    /// Writes a line to its standard input.
    void write(const QByteArray& line);

    /// Lets it do its next step, by an empty line.
    void poke() { write({}); }

    [[nodiscard]] qint64 processId() const { return process_.processId(); }

    /// Runs the event loop until the client has ended; returns its output.
    [[nodiscard]] QByteArray finish();

private:
    QProcess process_;
};

/// Runs a program to its end; whether that was a success.
[[nodiscard]] bool run(const QString& program, const QStringList& arguments);

/// Measures the max. time for which the program kept the event loop from running, without the time
/// that the main thread waited for a processor.
class StallGauge {
public:
    StallGauge();

    [[nodiscard]] qint64 longestStallMs() const { return longest_; }

private:
    static constexpr int interval = 5;

    [[nodiscard]] static qint64 queuedMs();

    QTimer timer_;
    QElapsedTimer sinceLast_;
    qint64 queued_ = 0; ///< By the last time.
    qint64 longest_ = 0;
};

} // namespace ravelo::live
