#pragma once

#include "support/Eventually.h"

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ravelo {

/// A message bus of this test's own, which knows no services.
class PrivateBus {
public:
    PrivateBus() {
        using namespace Qt::StringLiterals;
        const QString configuration = folder_.filePath(u"bus.conf"_s);
        QFile file(configuration);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<busconfig><type>session</type><listen>unix:dir=" + folder_.path().toUtf8() +
                   "</listen><policy context='default'><allow send_destination='*'/>"
                   "<allow own='*'/><allow receive_sender='*'/></policy></busconfig>");
        file.close();
        daemon_.start(u"dbus-daemon"_s,
                      {u"--nofork"_s, u"--print-address"_s, u"--config-file="_s + configuration});
        EXPECT_TRUE(daemon_.waitForReadyRead()) << "dbus-daemon does not start";
        address_ = QString::fromUtf8(daemon_.readLine().trimmed());
    }

    ~PrivateBus() {
        for (const QString& name : names_) {
            QDBusConnection::disconnectFromBus(name);
        }
        daemon_.kill();
        daemon_.waitForFinished();
    }

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    QDBusConnection connect(const QString& name) {
        names_.append(name);
        return QDBusConnection::connectToBus(address_, name);
    }

    [[nodiscard]] QString address() const { return address_; }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

} // namespace ravelo
