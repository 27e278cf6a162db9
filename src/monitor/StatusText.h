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

/// What the monitors know at one moment.
struct MonitorStatus {
    QString model; ///< Empty before the first session was found.
    qint64 used = 0;
    qint64 limit = 0;
    std::optional<Date> lastActivity;
    PeakInfo peak;
    PlanWindows plan;

    [[nodiscard]] static MonitorStatus of(const LiveContext& context, const PlanUsage& usage,
                                          Date now);

    /// What can be known where no monitor runs: the files below `home`, or in `otherFolders` of
    /// Claude Code's, read once. Blocks; any thread.
    [[nodiscard]] static MonitorStatus fromFiles(const QByteArray& home,
                                                 const QByteArrayList& otherFolders,
                                                 std::unique_ptr<FolderChanges> changes, Date now);
};

/// The session's context, where there is one, and the peak hours, in one line.
[[nodiscard]] QString contextLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                  const QTimeZone& zone = QTimeZone::systemTimeZone());

/// For bars and prompts: the same and how much of the plan's two windows is used, in one line.
[[nodiscard]] QString statusLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                 const QTimeZone& zone = QTimeZone::systemTimeZone());

/// For programs: one JSON object, with dates as ISO 8601 in UTC and null for what is not known. A
/// window whose reset has passed says so by "resetPassed".
[[nodiscard]] QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                                    const QTimeZone& zone = QTimeZone::systemTimeZone());

} // namespace ravelo
