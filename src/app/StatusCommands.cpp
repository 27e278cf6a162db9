#include "app/StatusCommands.h"

#include "base/Files.h"
#include "base/SignalsBlocked.h"
#include "monitor/BarText.h"
#include "monitor/ClaudeEnvironment.h"
#include "monitor/UsageFile.h"
#include "monitor/UsageReaders.h"
#include "platform/system/InotifyChanges.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxInput = qint64(1) << 20;

QByteArray home() {
    return QFile::encodeName(QDir::homePath());
}

StatusChoice choiceIn(const QString& preferenceFile) {
    const QJsonDocument preferences =
        QJsonDocument::fromJson(readFile(preferenceFile).value_or(QByteArray()));
    return {preferences["showPeakHours"_L1].toBool(true),
            preferences["handedOverFirst"_L1].toBool(false)};
}

} // namespace

Answer statusAnswer(const MonitorStatus& status, Date now, const StatusChoice& choice,
                    const QStringList& arguments) {
    const QLocale locale = QLocale::system(); // The default one follows the interface.
    const QString format = arguments.value(0);
    if (format == "--json"_L1) {
        return {0, statusJson(status, now, locale), {}};
    }
    if (format == "--waybar"_L1) {
        return {0, waybarText(status, now, locale, choice), {}};
    }
    if (format == "--tmux"_L1) {
        return {0, tmuxText(status, now, choice), {}};
    }
    return {0, statusLine(status, now, locale, QTimeZone::systemTimeZone(), choice).toUtf8(), {}};
}

Answer statusFromFiles(const QString& preferenceFile, const QStringList& arguments) {
    const Date now = toDate(QDateTime::currentDateTimeUtc());
    const QByteArrayList others =
        otherClaudeFolders(home(), QProcessEnvironment::systemEnvironment());
    return statusAnswer(
        MonitorStatus::fromFiles(home(), others, std::make_unique<InotifyChanges>(), now), now,
        choiceIn(preferenceFile), arguments);
}

Answer storeUsageFromInput(Printing printing) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return {1, {}, u"cannot read standard input"_s};
    }
    const QByteArray given = input.read(maxInput + 1);
    if (given.size() > maxInput) {
        return {1, {}, u"that is too long for a status line"_s};
    }
    const auto handed = readHandedOver(given, toDate(QDateTime::currentDateTimeUtc()));
    const auto plan = readUsageFile(given);
    if (!handed && !plan) {
        return {1, {}, u"the input has neither a session nor rate limits"_s};
    }
    // Claude Code ends a status line once the next is due. A write that is killed leaves a file.
    const SignalsBlocked blocked;
    const auto session = handed ? storeHandedOver(home(), *handed) : Result<void>();
    const auto usage = plan ? storeUsage(home(), given) : Result<void>();
    Answer answer;
    for (const auto& stored : {session, usage}) {
        if (!stored) {
            answer = {1, {}, stored.error().message};
        }
    }
    if (printing == Printing::line) { // Also if the disk is full.
        answer.output = handedOverText(handed.value_or(HandedOver()), plan.value_or(PlanWindows()));
    }
    return answer;
}

} // namespace ravelo
