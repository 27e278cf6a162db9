#include "app/StatusCommands.h"

#include "monitor/ClaudeEnvironment.h"
#include "monitor/StatusText.h"
#include "monitor/UsageFile.h"
#include "platform/system/InotifyChanges.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxInput = qint64(1) << 20;

QByteArray home() {
    return QFile::encodeName(QDir::homePath());
}

} // namespace

Answer statusAnswer(const MonitorStatus& status, Date now, const QStringList& arguments) {
    const bool json = arguments.value(0) == "--json"_L1;
    return {0,
            json ? statusJson(status, now, QLocale()) : statusLine(status, now, QLocale()).toUtf8(),
            {}};
}

Answer statusFromFiles(const QStringList& arguments) {
    const Date now = toDate(QDateTime::currentDateTimeUtc());
    const QByteArrayList others =
        otherClaudeFolders(home(), QProcessEnvironment::systemEnvironment());
    return statusAnswer(
        MonitorStatus::fromFiles(home(), others, std::make_unique<InotifyChanges>(), now), now,
        arguments);
}

Answer storeUsageFromInput() {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return {1, {}, u"cannot read standard input"_s};
    }
    const QByteArray given = input.read(maxInput + 1);
    if (given.size() > maxInput) {
        return {1, {}, u"that is too long for a status line"_s};
    }
    const auto stored = storeUsage(home(), given);
    return stored ? Answer() : Answer{1, {}, stored.error().message};
}

} // namespace ravelo
