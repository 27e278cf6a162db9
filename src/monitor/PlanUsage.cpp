#include "monitor/PlanUsage.h"

#include "monitor/MonitorPlatform.h"
#include "monitor/UsageFile.h"
#include "platform/DetachedJobs.h"

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds interval(5);
constexpr Seconds fetchSpacing(90);

} // namespace

PlanUsage::PlanUsage(UsageQuery::Services services, const QByteArray& home,
                     UsageQuery::Endpoint endpoint)
    : services_(services), home_(home), query_(services, home, std::move(endpoint)) {
    refresh();
    timer_ = services_.scheduler.every(interval, [this] { refresh(); });
}

PlanUsage::~PlanUsage() = default;

PlanUsage& PlanUsage::shared() {
    static PlanUsage* const instance = monitorPlatform().makePlanUsage().release();
    return *instance;
}

UsageQuery::Endpoint PlanUsage::provider() {
    return {QUrl(u"https://api.anthropic.com/api/oauth/usage"_s), Seconds(15)};
}

void PlanUsage::refresh() {
    const Seconds now = services_.scheduler.uptime();
    if (!fetching_ && (!lastFetch_ || now - *lastFetch_ > fetchSpacing)) {
        fetching_ = true;
        lastFetch_ = now;
        fetchLive();
    }
    if (!liveOK_) {
        readFile();
    }
}

void PlanUsage::fetchLive() {
    query_.queryAPI([this](const std::optional<PlanWindows>& windows) {
        fetching_ = false;
        liveOK_ = windows.has_value();
        if (windows) {
            set(*windows);
        }
    });
}

void PlanUsage::readFile() {
    if (reading_) {
        return;
    }
    auto windows = std::make_shared<std::optional<PlanWindows>>();
    reading_ = services_.jobs.run([windows, home = home_] { *windows = loadUsage(home); },
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
