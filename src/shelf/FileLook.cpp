#include "shelf/FileLook.h"

#include "base/FileUrl.h"
#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"

#include <utility>

namespace ravelo {

namespace {

constexpr Seconds patience{2};
/// Folders that are asked at the same time; each takes a thread, for ever if its server is gone.
constexpr size_t mostAsked = 6;

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
    for (const QUrl& file : files) {
        const QByteArray path = filePath(file);
        found_.insert(file, Presence::unknown);
        waiting_[path.first(path.lastIndexOf('/') + 1)].append(file);
    }
    std::erase_if(waiting_, [this](const auto& folder) { return asked_.contains(folder.first); });
    askMore();
    // Also if nothing could be asked: never from within the call.
    limit_ = scheduler_.after(open_ > 0 ? patience : Seconds(0), [this] { finish(); });
}

void FileLook::askMore() {
    while (!waiting_.empty() && asked_.size() < mostAsked) {
        const auto next = waiting_.extract(waiting_.begin());
        ask(next.key(), next.mapped());
    }
}

void FileLook::ask(const QByteArray& folder, const QList<QUrl>& files) {
    ++open_;
    const auto found = std::make_shared<Found>();
    asked_[folder] = jobs_.run([files, found] { *found = presences(files); },
                               [this, folder, found, number = number_] {
                                   asked_.erase(folder);
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
