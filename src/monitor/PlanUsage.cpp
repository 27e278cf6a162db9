#include "monitor/PlanUsage.h"

#include "monitor/UsageFile.h"
#include "platform/DetachedJobs.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds interval(5);
constexpr Seconds fetchSpacing(90);
constexpr Seconds maxSpacing(1800);

} // namespace

PlanUsage::PlanUsage(UsageQuery::Services services, const QByteArray& home,
                     UsageQuery::Endpoint endpoint, const QByteArrayList& otherFolders)
    : services_(services),
      home_(home),
      query_(services, home, std::move(endpoint), otherFolders),
      spacing_(fetchSpacing) {
    refresh();
    timer_ = services_.scheduler.every(interval, [this] { refresh(); });
}

PlanUsage::~PlanUsage() = default;

PlanUsage& PlanUsage::shared(const std::function<std::unique_ptr<PlanUsage>()>& make) {
    static PlanUsage* const instance = make().release();
    return *instance;
}

UsageQuery::Endpoint PlanUsage::provider() {
    return {QUrl(u"https://api.anthropic.com/api/oauth/usage"_s), Seconds(15)};
}

void PlanUsage::refresh() {
    const Seconds now = services_.scheduler.uptime();
    if (!fetching_ && now >= notBefore_ && (!lastFetch_ || now - *lastFetch_ > spacing_)) {
        fetching_ = true;
        lastFetch_ = now;
        fetchLive();
    }
    if (!liveOK_) {
        readFile();
    }
}

void PlanUsage::fetchLive() {
    query_.queryAPI([this](const UsageQuery::Outcome& outcome) { handle(outcome); });
}

void PlanUsage::handle(const UsageQuery::Outcome& outcome) {
    fetching_ = false;
    liveOK_ = outcome.windows.has_value();
    if (outcome.tooMany) {
        spacing_ = std::min(2 * spacing_, maxSpacing);
        notBefore_ = services_.scheduler.uptime() + *outcome.tooMany;
    }
    if (outcome.windows) {
        spacing_ = fetchSpacing;
        liveAt_ = services_.scheduler.now();
        set(*outcome.windows);
    }
}

void PlanUsage::readFile() {
    if (reading_) {
        return;
    }
    auto windows = std::make_shared<std::optional<PlanWindows>>();
    reading_ = services_.jobs.run(
        [windows, home = home_, liveAt = liveAt_] {
            if (!liveAt || usageWritten(home) >= liveAt) {
                *windows = loadUsage(home);
            }
        },
        [this, windows] {
            reading_.reset();
            if (*windows && !liveOK_) {
                set(**windows);
            }
        });
}

void PlanUsage::set(const PlanWindows& windows) {
    windows_ = windows;
    Q_EMIT changed();
}

} // namespace ravelo
