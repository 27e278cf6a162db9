#pragma once

#include "monitor/PeakInfo.h"
#include "monitor/UsageWindow.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QLocale>
#include <QTimeZone>

#include <memory>

namespace ravelo {

class FolderChanges;
class LiveContext;
class PlanUsage;

/// A snapshot of the monitors.
struct MonitorStatus {
    QString model; ///< Empty until a session is found.
    qint64 used = 0;
    qint64 limit = 0;
    std::optional<Date> lastActivity;
    PeakInfo peak;
    PlanWindows plan;

    [[nodiscard]] static MonitorStatus of(const LiveContext& context, const PlanUsage& usage,
                                          Date now);

    /// Without running monitors: reads the files below `home` or in `otherFolders` once. Blocks;
    /// any thread.
    [[nodiscard]] static MonitorStatus fromFiles(const QByteArray& home,
                                                 const QByteArrayList& otherFolders,
                                                 std::unique_ptr<FolderChanges> changes, Date now);
};

/// One line: the session's context, if there is a session, and the peak hours.
[[nodiscard]] QString contextLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                  const QTimeZone& zone = QTimeZone::systemTimeZone());

/// For bars and prompts: the same line with the usage of the plan's two windows.
[[nodiscard]] QString statusLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                 const QTimeZone& zone = QTimeZone::systemTimeZone());

/// For programs: a JSON object with ISO 8601 dates in UTC and null for unknown values. A window
/// whose reset has passed has "resetPassed".
[[nodiscard]] QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                                    const QTimeZone& zone = QTimeZone::systemTimeZone());

} // namespace ravelo
