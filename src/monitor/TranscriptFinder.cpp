#include "monitor/TranscriptFinder.h"

#include "monitor/ClaudeEnvironment.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace ravelo {

namespace {

constexpr std::string_view extension(".jsonl");
constexpr size_t maxKept = 8;
constexpr int entriesPerSkip = 200; ///< Unwatched entries for each skipped call.
constexpr int maxSkipped = 60;

/// A folder being listed.
class Listing {
public:
    explicit Listing(const QByteArray& path) {
        const int folder = open(path.constData(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
        stream_ = folder < 0 ? nullptr : fdopendir(folder);
        if (stream_ == nullptr && folder >= 0) {
            close(folder);
        }
    }

    ~Listing() {
        if (stream_ != nullptr) {
            closedir(stream_);
        }
    }

    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;

    [[nodiscard]] bool isOpen() const { return stream_ != nullptr; }

    /// The next entry, also a hidden one; null at the end.
    [[nodiscard]] const dirent* next() {
        const dirent* entry = readdir(stream_);
        while (entry != nullptr && isSelfOrParent(entry->d_name)) {
            entry = readdir(stream_);
        }
        return entry;
    }

    /// Follows links; nothing if the entry is gone.
    [[nodiscard]] std::optional<struct stat> look(const dirent& entry) const {
        struct stat info = {};
        return fstatat(dirfd(stream_), entry.d_name, &info, 0) == 0 ? std::optional(info)
                                                                    : std::nullopt;
    }

private:
    static bool isSelfOrParent(std::string_view name) { return name == "." || name == ".."; }

    DIR* stream_ = nullptr;
};

/// ".jsonl" itself is not one.
bool isTranscript(const dirent& entry) {
    const std::string_view name = entry.d_name;
    return name.size() > extension.size() && name.ends_with(extension) && entry.d_type != DT_DIR;
}

qint64 modified(const struct stat& info) {
    return info.st_mtim.tv_sec * qint64(1'000'000'000) + info.st_mtim.tv_nsec;
}

bool isNewer(const Transcript& one, const Transcript& other) {
    return one.modified > other.modified ||
           (one.modified == other.modified && one.path < other.path);
}

void keep(std::vector<Transcript>& newest, Transcript transcript) {
    const auto place = std::ranges::upper_bound(newest, transcript, isNewer);
    newest.insert(place, std::move(transcript));
    newest.resize(std::min(newest.size(), maxKept));
}

} // namespace

TranscriptFinder::TranscriptFinder(QByteArray root, FolderChanges& changes)
    : root_(std::move(root)), changes_(changes) {}

std::vector<Transcript> TranscriptFinder::newest(const FolderChanges::Changes& changes) {
    unwatched_ = 0;
    if (!lookAtRoot(changes)) {
        return {};
    }
    std::vector<Transcript> newest;
    for (auto& [path, folder] : folders_) {
        if (!folder.listed || changes.lost || changes.folders.contains(path) ||
            (!folder.known && skipsLeft_ == 0)) {
            list(path, folder);
        }
        for (const Transcript& transcript : folder.newest) {
            keep(newest, transcript);
        }
    }
    if (skipsLeft_ == 0) {
        skipsLeft_ = std::min(unwatched_ / entriesPerSkip, maxSkipped);
    } else {
        --skipsLeft_;
        if (!newest.empty()) {
            lookAgain(newest.front());
        }
    }
    return newest;
}

/// For one in an unwatched folder.
void TranscriptFinder::lookAgain(Transcript& transcript) {
    struct stat info = {};
    if (stat(transcript.path.constData(), &info) == 0 && S_ISREG(info.st_mode)) {
        transcript.modified = modified(info);
        transcript.size = info.st_size;
    } else {
        skipsLeft_ = 0; // Find the new newest one next time.
    }
}

bool TranscriptFinder::lookAtRoot(const FolderChanges::Changes& changes) {
    struct stat info = {};
    if (stat(root_.constData(), &info) != 0) {
        forget();
        return false;
    }
    // Renaming a parent folder is not reported as a change of the root.
    const Identity identity{info.st_dev, info.st_ino};
    if (rootIdentity_ != identity) {
        forget();
        rootIdentity_ = identity;
    }
    if (!rootListed_ || changes.lost || changes.folders.contains(root_) ||
        (!rootKnown_ && skipsLeft_ == 0)) {
        listRoot();
    }
    return true;
}

bool TranscriptFinder::isWatched() const {
    return !rootIdentity_ || (rootKnown_ && std::ranges::all_of(folders_, [](const auto& one) {
                                  return one.second.known;
                              }));
}

void TranscriptFinder::forget() {
    for (const auto& [path, folder] : folders_) {
        changes_.unwatch(path);
    }
    changes_.unwatch(root_);
    folders_.clear();
    rootIdentity_.reset();
    rootListed_ = false;
    rootKnown_ = false;
    skipsLeft_ = 0;
}

void TranscriptFinder::listRoot() {
    const bool watched =
        changes_.watch(root_, FolderChanges::What::names); // First, so that no change is missed.
    Listing listing(root_);
    rootListed_ = true;
    rootKnown_ = watched && listing.isOpen();
    std::set<QByteArray> present;
    while (const dirent* entry = listing.isOpen() ? listing.next() : nullptr) {
        unwatched_ += rootKnown_ ? 0 : 1;
        const bool mayBeFolder =
            entry->d_type == DT_DIR || entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        if (mayBeFolder && !isOfRenewal(entry->d_name)) { // That is no session of the user's.
            const QByteArray path = root_ + '/' + entry->d_name;
            folders_[path].isLink = entry->d_type != DT_DIR;
            present.insert(path);
        }
    }
    for (auto folder = folders_.begin(); folder != folders_.end();) {
        if (present.contains(folder->first)) {
            ++folder;
        } else {
            changes_.unwatch(folder->first);
            folder = folders_.erase(folder);
        }
    }
}

void TranscriptFinder::list(const QByteArray& path, Folder& folder) {
    bool hasLinks = folder.isLink;
    const bool watched = !folder.isLink && changes_.watch(path, FolderChanges::What::contents);
    folder.newest.clear();
    Listing listing(path);
    int entries = 0;
    while (const dirent* entry = listing.isOpen() ? listing.next() : nullptr) {
        ++entries;
        if (!isTranscript(*entry)) {
            continue;
        }
        const std::optional<struct stat> info = listing.look(*entry);
        hasLinks |= entry->d_type != DT_REG; // The target of a link may change unnoticed.
        if (info && S_ISREG(info->st_mode)) {
            if (folder.newest.size() < maxKept ||
                modified(*info) >= folder.newest.back().modified) {
                keep(folder.newest, {path + '/' + entry->d_name, modified(*info), info->st_size});
            }
        }
    }
    folder.listed = true;
    folder.known = watched && listing.isOpen() && !hasLinks;
    unwatched_ += folder.known ? 0 : entries;
}

} // namespace ravelo
