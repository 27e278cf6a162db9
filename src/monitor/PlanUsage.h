#pragma once

#include "base/Handle.h"
#include "monitor/Looks.h"
#include "monitor/PlanPace.h"
#include "monitor/UsageQuery.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

class FolderChanges;

/// How much of the plan's two windows is used up. Queried every 90 seconds, or less often if the
/// provider refuses that or there is no login; while queries fail, read from
/// "~/.ravelo/usage.json" within five seconds of a change, unless the file is older than the last
/// answer. A failure changes nothing. The recent figures are kept in "~/.cache/ravelo/pace.json".
/// Main thread.
class PlanUsage : public QObject {
    Q_OBJECT

public:
    /// Starts at once. `home` is the user's home folder; see UsageQuery.
    /// For another account than the usual one there is an `onlyFolder` of Claude Code: its
    /// credentials are used and no files of the usual account.
    PlanUsage(UsageQuery::Services services, const QByteArray& home,
              std::unique_ptr<FolderChanges> changes, UsageQuery::Endpoint endpoint = provider(),
              const QByteArrayList& otherFolders = {}, const QByteArray& onlyFolder = {});
    ~PlanUsage() override;

    /// The process's own: the first call makes it, and nothing destroys it or what it is made from.
    [[nodiscard]] static PlanUsage& shared(const std::function<std::unique_ptr<PlanUsage>()>& make);

    /// The provider's API.
    [[nodiscard]] static UsageQuery::Endpoint provider();

    [[nodiscard]] const std::optional<UsageWindow>& session() const { return windows_.session; }

    [[nodiscard]] const std::optional<UsageWindow>& week() const { return windows_.week; }

    /// How fast they fill up; computed when figures come.
    [[nodiscard]] const PlanPace& pace() const { return pace_; }

    /// The time of the figures; nothing before the first.
    [[nodiscard]] const std::optional<Date>& figuresAt() const { return figuresAt_; }

    /// A query is running.
    [[nodiscard]] bool fetching() const { return fetching_; }

    /// The last query succeeded.
    [[nodiscard]] bool liveOK() const { return liveOK_; }

    /// Does what is due.
    void refresh();

Q_SIGNALS:
    /// The windows were set, even to the same values.
    void changed();

private:
    void fetchLive();
    void handle(const UsageQuery::Outcome& outcome);
    void readFile();
    void awaitFetch();
    void set(const PlanWindows& windows, Date at);
    void handleCourse(PlanCourse before);
    void saveCourse();

    struct Files; ///< Used by another thread while `reading_` is set.

    UsageQuery::Services services_;
    QByteArray home_;
    bool hasFiles_; ///< Of the usual account.
    std::shared_ptr<Files> files_;
    Looks looks_;
    UsageQuery query_;
    PlanWindows windows_;
    std::optional<Date> figuresAt_;
    PlanCourse course_;
    PlanPace pace_;
    bool courseLoaded_ = false;
    std::optional<PlanCourse> savedCourse_;
    Seconds courseSaved_{0}; ///< Uptime.
    Handle savingCourse_;
    std::optional<Seconds> lastFetch_; ///< Uptime.
    Seconds spacing_;                  ///< Minimum time between fetches.
    Seconds notBefore_{0};             ///< Uptime of the earliest next fetch.
    std::optional<Date> liveAt_;       ///< Time of the last success.
    bool fetching_ = false;
    bool liveOK_ = false;
    bool loggedOut_ = false;
    Handle reading_; ///< Of the file.
    Handle nextFetch_;
};

} // namespace ravelo
