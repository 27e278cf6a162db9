#pragma once

#include "base/Handle.h"
#include "monitor/UsageQuery.h"

#include <QObject>

#include <optional>

namespace ravelo {

/// How much of the plan's two windows is used up: asked for every 90 seconds or a little later,
/// less often if the provider finds that too often, and, while asking fails, read from the file
/// "~/.ravelo/usage.json" every five seconds unless that is older than the last answer. What fails
/// leaves all as it was. Main thread.
class PlanUsage : public QObject {
    Q_OBJECT

public:
    /// Begins at once. `home` is the user's home folder; for the others see UsageQuery.
    PlanUsage(UsageQuery::Services services, const QByteArray& home,
              UsageQuery::Endpoint endpoint = provider(), const QByteArrayList& otherFolders = {});
    ~PlanUsage() override;

    /// The process's own, made at its first use and never destroyed; see MonitorPlatform.
    [[nodiscard]] static PlanUsage& shared();

    /// Where the real numbers are.
    [[nodiscard]] static UsageQuery::Endpoint provider();

    [[nodiscard]] const std::optional<UsageWindow>& session() const { return windows_.session; }

    [[nodiscard]] const std::optional<UsageWindow>& week() const { return windows_.week; }

    /// A query is on its way.
    [[nodiscard]] bool fetching() const { return fetching_; }

    /// The last query succeeded.
    [[nodiscard]] bool liveOK() const { return liveOK_; }

    void refresh();

Q_SIGNALS:
    /// The windows were set, also where they stayed the same.
    void changed();

private:
    void fetchLive();
    void take(const UsageQuery::Outcome& outcome);
    void readFile();
    void set(const PlanWindows& windows);

    UsageQuery::Services services_;
    QByteArray home_;
    UsageQuery query_;
    PlanWindows windows_;
    std::optional<Seconds> lastFetch_; ///< Uptime.
    Seconds spacing_;                  ///< Of fetches, at least.
    Seconds notBefore_{0};             ///< Uptime; no fetch earlier.
    std::optional<Date> liveAt_;       ///< When the last query succeeded.
    bool fetching_ = false;
    bool liveOK_ = false;
    Handle reading_; ///< Of the file.
    Handle timer_;
};

} // namespace ravelo
