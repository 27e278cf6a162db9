#include "platform/system/FolderFollower.h"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ravelo {

namespace {

// IN_MASK_ADD: by a link, the folder may be its own parent.
constexpr uint32_t self = IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR | IN_MASK_ADD;
constexpr uint32_t ofFolder = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | self;
constexpr uint32_t ofAbove = IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | self;
constexpr uint32_t ofGone = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;

constexpr int steadyTries = 5; ///< Folders may appear during the search for the nearest.

struct Found {
    FolderEntry entry;
    timespec changed{};
};

bool isEmptyFile(const struct stat& info) {
    return S_ISREG(info.st_mode) && info.st_size == 0;
}

/// A file that is gone again counts as not empty.
bool isEmptyFile(const QByteArray& path) {
    struct stat info {};

    return lstat(path.constData(), &info) == 0 && isEmptyFile(info);
}

enum class Detail { namesOnly, withTimes };

std::vector<Found> entriesOf(const QByteArray& path, Detail detail) {
    std::vector<Found> entries;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.constData()), closedir);
    while (const dirent* entry = folder ? readdir(folder.get()) : nullptr) {
        const QByteArray name(entry->d_name);

        struct stat info {};

        if (name == "." || name == "..") {
            continue;
        }
        if (detail == Detail::withTimes) {
            fstatat(dirfd(folder.get()), entry->d_name, &info, AT_SYMLINK_NOFOLLOW);
        }
        entries.push_back({{name, isEmptyFile(info)}, info.st_ctim});
    }
    return entries;
}

} // namespace

FolderFollower::FolderFollower(QByteArray path, Notify notify)
    : path_(std::move(path)),
      notify_(std::move(notify)),
      inotify_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    while (path_.size() > 1 && path_.endsWith('/')) {
        path_.chop(1);
    }
}

FolderFollower::~FolderFollower() {
    close(inotify_);
}

void FolderFollower::proceed() {
    read();
    if (!changes_.isEmpty()) {
        notify_({{}, std::exchange(changes_, {})});
    }
    if (std::exchange(looksAgain_, false)) {
        watchAbove();
        watchFolder();
    }
    if (std::exchange(missed_, false) && folder_ >= 0) {
        list(FolderListing::Unknown::arrived);
    }
    unknown_ = FolderListing::Unknown::old;
}

void FolderFollower::read() {
    alignas(inotify_event) std::array<char, 1 << 16> buffer;
    const ssize_t size = ::read(inotify_, buffer.data(), buffer.size());
    for (ssize_t at = 0; at < size;) {
        const auto& event = *reinterpret_cast<const inotify_event*>(&buffer[at]);
        handle(event);
        at += static_cast<ssize_t>(sizeof event) + event.len;
    }
}

void FolderFollower::handle(const inotify_event& event) {
    const bool gone = (event.mask & ofGone) != 0;
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        missed_ = true;
        looksAgain_ = true;
    }
    if (event.wd == above_ && (gone || (event.len > 0 && below_ == event.name))) {
        looksAgain_ = true;
        // A new folder is empty, so all its entries are new.
        const bool made = (event.mask & IN_CREATE) != 0 && (event.mask & IN_ISDIR) != 0;
        unknown_ = made ? FolderListing::Unknown::arrived : FolderListing::Unknown::old;
    }
    if (event.wd == folder_) {
        looksAgain_ = looksAgain_ || gone;
        if (event.len > 0) {
            handleChange(event);
        }
    }
}

void FolderFollower::handleChange(const inotify_event& event) {
    using Kind = FolderChange::Kind;
    const QByteArray name(event.name);
    if ((event.mask & IN_CLOSE_WRITE) != 0) {
        changes_.append({Kind::written, name, isEmptyFile(path_ + '/' + name), 0});
    } else if ((event.mask & IN_MOVED_TO) != 0) {
        changes_.append({Kind::movedIn, name, false, event.cookie});
    } else if ((event.mask & IN_MOVED_FROM) != 0) {
        changes_.append({Kind::movedOut, name, false, event.cookie});
    } else if ((event.mask & IN_DELETE) != 0) {
        changes_.append({Kind::deleted, name, false, 0});
    }
}

/// To be notified when the next folder on the path is created.
void FolderFollower::watchAbove() {
    for (int tries = 0; tries < steadyTries; ++tries) {
        const int before = above_;
        above_ = watchNearest();
        if (above_ == before) {
            break;
        }
        drop(before);
    }
}

/// Watches the nearest possible parent; -1 if there is none.
int FolderFollower::watchNearest() {
    for (qsizetype end = path_.lastIndexOf('/'); end >= 0;
         end = end > 0 ? path_.lastIndexOf('/', end - 1) : -1) {
        const QByteArray above = end > 0 ? path_.first(end) : "/";
        const int watch = inotify_add_watch(inotify_, above.constData(), ofAbove);
        if (watch >= 0) {
            below_ = path_.mid(end + 1).split('/').first();
            return watch;
        }
    }
    return -1;
}

void FolderFollower::watchFolder() {
    const int before = folder_;
    folder_ = inotify_add_watch(inotify_, path_.constData(), ofFolder);
    drop(before); // Moved or removed.
    if (folder_ != before || first_) {
        list(first_ ? FolderListing::Unknown::old : unknown_);
    }
    first_ = false;
}

void FolderFollower::drop(int watch) {
    if (watch >= 0 && watch != folder_ && watch != above_) {
        inotify_rm_watch(inotify_, watch);
    }
}

void FolderFollower::list(FolderListing::Unknown unknown) {
    FolderListing listing{{}, unknown};
    if (folder_ >= 0) {
        const bool arrived = unknown == FolderListing::Unknown::arrived;
        auto entries = entriesOf(path_, arrived ? Detail::withTimes : Detail::namesOnly);
        if (arrived) {
            std::ranges::stable_sort(entries, [](const Found& a, const Found& b) {
                return std::pair(a.changed.tv_sec, a.changed.tv_nsec) <
                       std::pair(b.changed.tv_sec, b.changed.tv_nsec);
            });
        }
        for (const Found& found : entries) {
            listing.entries.append(found.entry);
        }
    }
    notify_({std::move(listing), {}});
}

} // namespace ravelo
