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

    /// Runs the event loop until the client has written another whole line; it, without its end.
    [[nodiscard]] QByteArray readLine();

    /// Writes a line to its standard input.
    void write(const QByteArray& line);

    /// Lets it do its next step, by an empty line.
    void poke() { write({}); }

    [[nodiscard]] qint64 processId() const { return process_.processId(); }

    /// Runs the event loop until the client has ended; what it wrote.
    [[nodiscard]] QByteArray finish();

private:
    QProcess process_;
};

/// Notices how long the event loop was kept from running by what the program does. The time that
/// the main thread was ready and waited for a processor does not count.
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
