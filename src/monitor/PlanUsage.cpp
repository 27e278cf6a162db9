#include "monitor/PlanUsage.h"

#include "monitor/PaceFile.h"
#include "monitor/UsageFile.h"
#include "monitor/WatchedFiles.h"
#include "platform/DetachedJobs.h"
#include "platform/FolderChanges.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds fetchSpacing(90);
constexpr Seconds maxSpacing(1800);
constexpr Seconds saveSpacing(600);

} // namespace

struct PlanUsage::Files {
    Files(std::unique_ptr<FolderChanges> given, const QByteArray& home)
        : changes(std::move(given)), watched(*changes, home) {}

    std::unique_ptr<FolderChanges> changes;
    WatchedFiles watched;
};

PlanUsage::PlanUsage(UsageQuery::Services services, const QByteArray& home,
                     std::unique_ptr<FolderChanges> changes, UsageQuery::Endpoint endpoint,
                     const QByteArrayList& otherFolders, const QByteArray& onlyFolder)
    : services_(services),
      home_(home),
      hasFiles_(onlyFolder.isEmpty()),
      files_(std::make_shared<Files>(std::move(changes), home)),
      looks_(services.scheduler, *files_->changes,
             [this] {
                 if (loggedOut_ && !looks_.isPolling()) {
                     lastFetch_.reset(); // Somebody may have logged in.
                 }
                 refresh();
             }),
      query_(services, home, std::move(endpoint), otherFolders, onlyFolder),
      spacing_(fetchSpacing) {
    if (hasFiles_) {
        files_->watched.add(usageFile(home), FolderChanges::What::contents);
    }
    for (const QByteArray& folder : hasFiles_ ? QByteArrayList{home + "/.claude"} + otherFolders
                                              : QByteArrayList{onlyFolder}) {
        files_->watched.add(folder + '/' + UsageQuery::credentialsFile.toByteArray(),
                            FolderChanges::What::names);
    }
    refresh();
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
    loggedOut_ = outcome.loggedOut;
    if (outcome.tooMany) {
        spacing_ = std::min(2 * spacing_, maxSpacing);
        notBefore_ = services_.scheduler.uptime() + *outcome.tooMany;
    }
    if (outcome.windows) {
        spacing_ = fetchSpacing;
        liveAt_ = services_.scheduler.now();
        looks_.pause();
        set(*outcome.windows, *liveAt_);
    } else {
        readFile();
    }
    awaitFetch();
}

void PlanUsage::awaitFetch() {
    const Seconds now = services_.scheduler.uptime();
    const bool wakesUs = loggedOut_ && !looks_.isPolling(); // When somebody logs in.
    const Seconds due = std::max(
        lastFetch_.value_or(now) + (wakesUs ? maxSpacing : spacing_ + Looks::interval), notBefore_);
    nextFetch_ = services_.scheduler.after(due - now, [this] { refresh(); });
}

void PlanUsage::readFile() {
    if (reading_) {
        return;
    }

    struct Reading {
        bool watched = false;
        std::optional<PlanWindows> windows;
        std::optional<Date> written;
        std::optional<PlanCourse> course;
    };

    auto reading = std::make_shared<Reading>();
    reading_ = services_.jobs.run(
        [reading, files = files_, home = home_, liveAt = liveAt_, loaded = courseLoaded_,
         hasFiles = hasFiles_] {
            static_cast<void>(files->changes->take());
            reading->watched = files->watched.watch();
            if (!hasFiles) {
                return;
            }
            reading->written = usageWritten(home);
            if (!liveAt || reading->written >= liveAt) {
                reading->windows = loadUsage(home);
            }
            if (!loaded) {
                reading->course = loadCourse(home);
            }
        },
        [this, reading] {
            reading_.reset();
            if (reading->course) {
                handleCourse(*reading->course);
            }
            if (liveOK_) {
                return;
            }
            looks_.looked(reading->watched ? Looks::Watched::yes : Looks::Watched::no);
            if (reading->windows) {
                set(*reading->windows, reading->written.value_or(services_.scheduler.now()));
            }
        });
}

void PlanUsage::set(const PlanWindows& windows, Date at) {
    windows_ = windows;
    figuresAt_ = at;
    course_.add(windows, at);
    pace_ = course_.pace(windows);
    Q_EMIT changed();
    saveCourse();
}

/// Figures may have come before it was read.
void PlanUsage::handleCourse(PlanCourse before) {
    courseLoaded_ = true;
    savedCourse_ = before;
    for (const UsageSample& sample : course_.session.samples()) {
        before.session.add(sample, sessionKind);
    }
    for (const UsageSample& sample : course_.week.samples()) {
        before.week.add(sample, weekKind);
    }
    course_ = std::move(before);
    if (figuresAt_) {
        pace_ = course_.pace(windows_);
        Q_EMIT changed();
    }
}

/// While nothing is used, nothing is written.
void PlanUsage::saveCourse() {
    const Seconds now = services_.scheduler.uptime();
    const auto sameUsage = [this](UsageCourse PlanCourse::*window) {
        const auto percent = [window](const PlanCourse& course) {
            const auto& samples = (course.*window).samples();
            return samples.empty() ? -1 : samples.back().pct;
        };
        return percent(course_) == percent(*savedCourse_);
    };
    if (!courseLoaded_ || savingCourse_ ||
        (courseSaved_ > Seconds(0) && now - courseSaved_ < saveSpacing) ||
        (sameUsage(&PlanCourse::session) && sameUsage(&PlanCourse::week))) {
        return;
    }
    savedCourse_ = course_;
    courseSaved_ = now;
    savingCourse_ = services_.jobs.run(
        [home = home_, course = course_] {
            static_cast<void>(storeCourse(home, course)); // The next one replaces it anyway.
        },
        [this] { savingCourse_.reset(); });
}

} // namespace ravelo
