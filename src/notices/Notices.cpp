#include "notices/Notices.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds minute(60);
constexpr Seconds savedAgainTime(4);

QString fileName(const QString& path) {
    return path.section(u'/', -1);
}

} // namespace

Notices::Notices(Scheduler& scheduler) : scheduler_(scheduler) {}

void Notices::saveFailed(Source source, const QString& reason, Retry retry) {
    const auto [failure, isNew] = failures_.try_emplace(source, Failure{scheduler_.uptime(), {}});
    failure->second.reason = reason;
    failure->second.retry = retry;
    savedAgain_.reset();
    watchFailure();
    update();
}

void Notices::saved(Source source) {
    if (failures_.erase(source) == 0) {
        return;
    }
    watchFailure();
    if (failures_.empty() && shown_.kind == SavingFails) {
        savedAgain_ = scheduler_.after(savedAgainTime, [this] {
            savedAgain_.reset();
            update();
        });
    }
    update();
}

void Notices::putAside(Source source, const QString& path) {
    aside_[source] = path;
    update();
}

void Notices::deletionEnded(const QString& problem) {
    notDeleted_ = problem;
    update();
}

void Notices::warn(const QString& what, const QString& why) {
    warning_ = {Warning, what, why + u'.', {}};
    update();
}

void Notices::setLocked(const QString& lead, const QString& rest, const QString& action) {
    locked_ = lead.isEmpty() ? Notice() : Notice{Locked, lead, rest, action};
    update();
}

void Notices::secretKept(const QString& form) {
    secret_ = form;
    update();
}

void Notices::act() {
    if (shown_.kind == SavingFails) {
        Q_EMIT tryAgain();
    } else if (shown_.kind == Locked) {
        Q_EMIT unlock();
    } else if (shown_.kind == PutAside) {
        const QString path = aside_.begin()->second;
        dismiss();
        Q_EMIT openFolder(path);
    } else if (shown_.kind == SecretKept) {
        dismiss();
        Q_EMIT keepSecrets();
    }
}

void Notices::dismiss() {
    if (shown_.kind == NotDeleted) {
        notDeleted_.clear();
    } else if (shown_.kind == Warning) {
        warning_ = {};
    } else if (shown_.kind == PutAside) {
        aside_.erase(aside_.begin());
    } else if (shown_.kind == SecretKept) {
        secret_.clear();
    }
    update();
}

void Notices::update() {
    if (Notice now = worst(); now != shown_) {
        shown_ = std::move(now);
        Q_EMIT changed();
    }
}

/// The notice counts minutes, so it changes with each of them.
void Notices::watchFailure() {
    nextMinute_.reset();
    if (const Failure* failure = worstFailure()) {
        const Seconds passed = scheduler_.uptime() - failure->since;
        nextMinute_ = scheduler_.after((std::floor(passed / minute) + 1) * minute - passed, [this] {
            watchFailure();
            update();
        });
    }
}

/// The one that no retry can end, else the one that has lasted longest.
const Notices::Failure* Notices::worstFailure() const {
    const auto worst = std::ranges::min_element(failures_, {}, [](const auto& entry) {
        return std::pair(entry.second.retry == Retry::yes, entry.second.since);
    });
    return worst == failures_.end() ? nullptr : &worst->second;
}

Notices::Notice Notices::worst() const {
    const Failure* failure = worstFailure();
    if (failure != nullptr &&
        (failure->retry == Retry::no || scheduler_.uptime() - failure->since >= minute)) {
        return failing(*failure);
    }
    if (!notDeleted_.isEmpty()) {
        return {NotDeleted, tr("Not deleted from the disk:"), notDeleted_ + u'.', {}};
    }
    if (warning_.kind == Warning) {
        return warning_;
    }
    if (savedAgain_) {
        return {SavedAgain, tr("Saved again."), {}, {}};
    }
    if (locked_.kind == Locked) {
        return locked_;
    }
    if (!aside_.empty()) {
        return fileAside(aside_.begin()->first, aside_.begin()->second);
    }
    return secret_.isEmpty()
               ? Notice()
               : Notice{SecretKept, tr("This looks like a secret: %1.").arg(secret_),
                        tr("Such texts are never written to disk and soon forgotten."),
                        tr("Keep such texts")};
}

Notices::Notice Notices::failing(const Failure& failure) const {
    if (failure.retry == Retry::no) {
        return {SavingFails, tr("Not saved any more:"), failure.reason + u'.', {}};
    }
    const auto minutes = static_cast<qint64>((scheduler_.uptime() - failure.since) / minute);
    return {SavingFails,
            (minutes == 1 ? tr("Not saved for %1 minute:") : tr("Not saved for %1 minutes:"))
                .arg(minutes),
            tr("%1. Nothing is lost while Ravelo runs.").arg(failure.reason), tr("Try again")};
}

Notices::Notice Notices::fileAside(Source source, const QString& path) {
    return source == Source::store
               ? Notice{PutAside, tr("Saved copy put aside:"),
                        tr("%1, in Ravelo\u2019s data folder. The history starts empty.")
                            .arg(fileName(path)),
                        tr("Open folder")}
               : Notice{PutAside, tr("Preferences put aside:"),
                        tr("%1. Settings are back at their defaults.").arg(fileName(path)),
                        tr("Open folder")};
}

} // namespace ravelo
