#include "live/support/Clients.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include <sys/prctl.h>

namespace ravelo::live {

Client::Client(const QString& program, const QStringList& arguments, const QByteArray& input) {
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program, arguments);
    if (!input.isNull()) {
        process_.write(input);
        process_.closeWriteChannel();
    }
    EXPECT_TRUE(process_.waitForStarted()) << qPrintable(program) << " does not start";
}

Client::~Client() {
    process_.terminate(); // A server removes its lock and socket.
    if (!process_.waitForFinished(5000)) {
        process_.kill();
        process_.waitForFinished();
    }
}

QByteArray Client::readLine() {
    EXPECT_TRUE(eventually([this] { return process_.canReadLine(); }))
        << qPrintable(process_.program()) << " says nothing";
    return process_.readLine().trimmed();
}

void Client::write(const QByteArray& line) {
    process_.write(line + '\n');
}

QByteArray Client::finish() {
    EXPECT_TRUE(eventually([this] { return process_.state() == QProcess::NotRunning; }))
        << qPrintable(process_.program()) << " does not end";
    return process_.readAllStandardOutput();
}

bool run(const QString& program, const QStringList& arguments) {
    return QProcess::execute(program, arguments) == 0;
}

StallGauge::StallGauge() : queued_(queuedMs()) {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        const qint64 queued = queuedMs();
        const qint64 waited = queued - std::exchange(queued_, queued);
        longest_ = std::max(longest_, sinceLast_.restart() - interval - waited);
    });
    sinceLast_.start();
    timer_.start(interval);
}

/// How long this thread has waited on a run queue (the second number of schedstat, nanoseconds).
qint64 StallGauge::queuedMs() {
    QFile file(QStringLiteral("/proc/thread-self/schedstat"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "no schedstat";
    return file.readAll().split(' ').value(1).toLongLong() / 1000000;
}

} // namespace ravelo::live
