#include "shelf/ReceivedWatcher.h"

#include "base/FileUrl.h"
#include "shelf/PartialNames.h"

#include <QFile>

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds receivingTime{4};
constexpr Seconds pauseTime{0.1};

} // namespace

ReceivedWatcher::ReceivedWatcher(FolderWatch& watch, Scheduler& scheduler, QString folder)
    : scheduler_(scheduler),
      folder_(std::move(folder)),
      watching_(watch.watch(QFile::encodeName(folder_), [this](const auto& news) { take(news); })) {
}

void ReceivedWatcher::take(const FolderNews& news) {
    arrived_ = false;
    if (news.listing) {
        takeListing(*news.listing);
    }
    for (const FolderChange& change : news.changes) {
        takeChange(change);
    }
    if (arrived_) {
        receivingEnd_ = scheduler_.after(receivingTime, [this] {
            receivingEnd_.reset();
            changes_.notify();
        });
    }
    if (changed_ && !pause_) {
        notify();
    }
}

void ReceivedWatcher::notify() {
    changed_ = false;
    files_.clear();
    for (const auto& [arrival, url] : received_) {
        files_.append(url);
    }
    pause_ = scheduler_.after(pauseTime, [this] {
        pause_.reset();
        if (changed_) {
            notify();
        }
    });
    changes_.notify();
}

void ReceivedWatcher::takeListing(const FolderListing& listing) {
    const auto before = std::exchange(known_, {});
    movedOut_ = {};
    for (const auto& [name, isEmpty] : listing.entries) {
        if (const auto found = before.constFind(name); found != before.cend()) {
            known_.insert(name, *found);
        } else if (kindOfName(name) != NameKind::whole) {
            continue;
        } else if (listing.unknown == FolderListing::Unknown::old) {
            known_.insert(name, old);
        } else if (!isEmpty) {
            arrive(name);
        }
    }
    for (auto [name, arrival] : before.asKeyValueRange()) {
        if (arrival != old && !known_.contains(name)) {
            received_.erase(arrival);
            changed_ = true;
        }
    }
}

void ReceivedWatcher::takeChange(const FolderChange& change) {
    switch (change.kind) {
    case FolderChange::Kind::written:
        // Browsers reserve the name of a download with an empty file.
        if (kindOfName(change.name) == NameKind::whole && !change.isEmpty &&
            !known_.contains(change.name)) {
            arrive(change.name);
        }
        break;
    case FolderChange::Kind::movedIn:
        movedIn(change);
        break;
    case FolderChange::Kind::movedOut:
        movedOut_ = {change.renaming, change.name, forget(change.name)};
        break;
    case FolderChange::Kind::deleted:
        (void)forget(change.name);
        break;
    }
}

void ReceivedWatcher::movedIn(const FolderChange& change) {
    const QByteArray& name = change.name;
    if (kindOfName(name) != NameKind::whole) {
        return;
    }
    const MovedOut from = change.renaming != 0 && change.renaming == movedOut_.renaming
                              ? std::exchange(movedOut_, {})
                              : MovedOut{};
    const bool received = known_.value(name, old) != old;
    switch (from.name.isEmpty() ? NameKind::temporary : kindOfName(from.name)) {
    case NameKind::download: // Also over an older file of this name.
        if (!received) {
            arrive(name);
        }
        break;
    case NameKind::temporary: // Over an older file, which has changed then.
        if (!known_.contains(name)) {
            arrive(name);
        }
        break;
    case NameKind::whole: // A rename makes no file new, but it may still have to be finished.
        if (from.known && !received) {
            place(name, *from.known);
        }
        break;
    }
}

void ReceivedWatcher::arrive(const QByteArray& name) {
    arrived_ = true;
    place(name, ++lastArrival_);
}

void ReceivedWatcher::place(const QByteArray& name, Arrival arrival) {
    known_.insert(name, arrival);
    if (arrival != old) {
        received_.emplace(arrival, fileUrl(QFile::encodeName(folder_) + '/' + name));
        changed_ = true;
    }
}

std::optional<ReceivedWatcher::Arrival> ReceivedWatcher::forget(const QByteArray& name) {
    const auto found = known_.constFind(name);
    if (found == known_.cend()) {
        return std::nullopt;
    }
    const Arrival arrival = *found;
    known_.erase(found);
    if (arrival != old) {
        received_.erase(arrival);
        changed_ = true;
    }
    return arrival;
}

} // namespace ravelo
