#include "shelf/FileLook.h"

#include "base/FileUrl.h"
#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds timeout{2};
/// Folders checked at the same time; each takes a thread, for ever if its server is gone.
constexpr int maxOpen = 6;

/// Max checks under way, including hanging ones, for another to start. A dead mount must not take
/// all threads, nor block the checks of healthy folders.
size_t maxAsked(FileLook::Trust trust) {
    switch (trust) {
    case FileLook::Trust::answered:
        return 16;
    case FileLook::Trust::fresh:
        return 12;
    case FileLook::Trust::besideHung:
        break;
    }
    return maxOpen;
}

/// The folder that contains `folder`; both end with a slash.
QByteArray parentOf(const QByteArray& folder) {
    return folder.first(folder.lastIndexOf('/', -2) + 1);
}

FileLook::Found presences(const QList<QUrl>& files) {
    FileLook::Found found;
    for (const QUrl& file : files) {
        found.insert(file, presenceOf(filePath(file)));
    }
    return found;
}

} // namespace

void FileLook::look(const QList<QUrl>& files, std::function<void(const Found&)> done) {
    ++number_;
    found_.clear();
    waiting_.clear();
    open_ = 0;
    done_ = std::move(done);
    std::map<QByteArray, QList<QUrl>> folders;
    for (const QUrl& file : files) {
        const QByteArray path = filePath(file);
        found_.insert(file, Presence::unknown);
        folders[path.first(path.lastIndexOf('/') + 1)].append(file);
    }
    std::erase_if(answered_, [&](const QByteArray& folder) { return !folders.contains(folder); });
    std::erase_if(folders, [this](const auto& folder) { return asked_.contains(folder.first); });
    for (auto& [folder, inside] : folders) {
        waiting_[{trustIn(folder), folder}] = std::move(inside);
    }
    askMore();
    // Later even if nothing was asked: `done` is never called from within look().
    limit_ = scheduler_.after(open_ > 0 ? timeout : Seconds(0), [this] { finish(); });
}

FileLook::Trust FileLook::trustIn(const QByteArray& folder) const {
    if (answered_.contains(folder)) {
        return Trust::answered;
    }
    const bool isBesideHung = std::ranges::any_of(asked_, [&](const auto& hung) {
        const QByteArray parent = parentOf(hung.first);
        return parent.size() > 1 && folder.startsWith(parent);
    });
    return isBesideHung ? Trust::besideHung : Trust::fresh;
}

void FileLook::askMore() {
    while (!waiting_.empty() && open_ < maxOpen &&
           asked_.size() < maxAsked(waiting_.begin()->first.first)) {
        const auto next = waiting_.extract(waiting_.begin());
        ask(next.key().second, next.mapped());
    }
}

void FileLook::ask(const QByteArray& folder, const QList<QUrl>& files) {
    ++open_;
    answered_.erase(folder);
    const auto found = std::make_shared<Found>();
    asked_[folder] = jobs_.run([files, found] { *found = presences(files); },
                               [this, folder, found, number = number_] {
                                   asked_.erase(folder);
                                   if (!found->isEmpty()) { // Empty if the check was dropped.
                                       answered_.insert(folder);
                                   }
                                   if (number != number_) {
                                       return;
                                   }
                                   found_.insert(*found);
                                   --open_;
                                   askMore();
                                   if (open_ == 0) {
                                       finish();
                                   }
                               });
}

void FileLook::finish() {
    limit_.reset();
    waiting_.clear();
    if (const auto done = std::exchange(done_, nullptr)) {
        done(std::exchange(found_, {}));
    }
}

} // namespace ravelo
