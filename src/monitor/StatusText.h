#pragma once

#include "monitor/HandedOver.h"
#include "monitor/PeakInfo.h"
#include "monitor/PlanPace.h"
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

/// What the user wants to see of it.
struct StatusChoice {
    bool peakHours = true;
    bool handedOverFirst = false; ///< What Claude Code handed over counts before its transcripts.
    Wording wording = Wording::english;
};

/// The plan of a second account.
struct OtherPlan {
    QString name; ///< Of its folder.
    PlanWindows windows;
    PlanPace pace;
    std::optional<Date> at;
};

/// "work: 5h 42% · week 78%"
[[nodiscard]] QString otherPlanLine(const OtherPlan& plan, Wording wording = Wording::english);

/// A snapshot of the monitors.
struct MonitorStatus {
    QString model; ///< Empty until a session is found.
    qint64 used = 0;
    qint64 limit = 0;
    std::optional<Date> lastActivity;
    PeakInfo peak;
    PlanWindows plan;
    QString project = {};
    std::optional<HandedOver> handed = {};
    PlanPace pace = {};
    std::optional<Date> planAt = {}; ///< The time of the plan's figures.
    std::optional<OtherPlan> second = {};

    [[nodiscard]] static MonitorStatus of(const LiveContext& context, const PlanUsage& usage,
                                          Date now);

    /// Without running monitors: reads the files below `home` or in `otherFolders` once. Blocks;
    /// any thread.
    [[nodiscard]] static MonitorStatus fromFiles(const QByteArray& home,
                                                 const QByteArrayList& otherFolders,
                                                 std::unique_ptr<FolderChanges> changes, Date now);
};

/// How full the context of a session is.
struct SessionContext {
    QString model;
    qint64 used = 0; ///< Tokens; zero if there is no session.
    qint64 limit = 0;
    QString project;
    std::optional<Date> at; ///< Of these figures.
};

/// By the transcripts, or by what was handed over.
[[nodiscard]] SessionContext chosenContext(const MonitorStatus& status, const StatusChoice& choice);

/// One line: the session's context, if there is a session, and the peak hours. Empty if there is
/// neither.
[[nodiscard]] QString contextLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                  const QTimeZone& zone = QTimeZone::systemTimeZone(),
                                  const StatusChoice& choice = {});

/// Below that line: which session that is and its last activity, a window of the plan that will be
/// full before it resets, and the second account. Only what is known.
[[nodiscard]] QStringList contextDetails(const MonitorStatus& status, Date now,
                                         const QTimeZone& zone = QTimeZone::systemTimeZone(),
                                         const StatusChoice& choice = {});

/// For bars and prompts: the same line with the usage of the plan's two windows.
[[nodiscard]] QString statusLine(const MonitorStatus& status, Date now, const QLocale& locale,
                                 const QTimeZone& zone = QTimeZone::systemTimeZone(),
                                 const StatusChoice& choice = {});

/// For programs: a JSON object with ISO 8601 dates in UTC and null for unknown values. A window
/// whose reset has passed has "resetPassed".
[[nodiscard]] QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                                    const QTimeZone& zone = QTimeZone::systemTimeZone());

} // namespace ravelo
