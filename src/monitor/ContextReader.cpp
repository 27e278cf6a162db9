#include "monitor/ContextReader.h"

#include "base/Files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

constexpr qint64 maxSettings = qint64(1) << 20;
constexpr double nanosecond = 1e-9;

/// Tries the end of the transcript first, then more of it. Nothing if it cannot be read.
std::optional<std::optional<TurnUsage>> readUsage(const QByteArray& path) {
    const std::optional<QByteArray> window = readFileEnd(path, transcriptWindow);
    if (!window) {
        return std::nullopt;
    }
    std::optional<TurnUsage> usage = lastUsage(*window);
    if (!usage && window->size() == transcriptWindow) { // It may begin within a character.
        usage = lastUsage(afterFirstLine(*window));
    }
    if (!usage && window->size() == transcriptWindow) {
        const QByteArray wide = readFileEnd(path, maxTranscriptWindow).value_or(QByteArray());
        usage = lastUsage(wide.size() == maxTranscriptWindow ? afterFirstLine(wide) : wide);
    }
    return usage;
}

} // namespace

ContextReader::ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                             const QByteArrayList& otherFolders)
    : changes_(std::move(changes)), files_(*changes_, home) {
    const QByteArrayList folders = QByteArrayList{home + "/.claude"} + otherFolders;
    signs_ = folders + QByteArrayList{home + "/.local/bin/claude"};
    for (const QByteArray& path : folders) {
        folders_.push_back(
            {path + "/settings.json", {}, {}, TranscriptFinder(path + "/projects", *changes_), {}});
        files_.add(path + "/settings.json", FolderChanges::What::contents);
    }
    files_.add(signs_.back(), FolderChanges::What::names);
}

ContextReading ContextReader::read() {
    const FolderChanges::Changes changes = changes_->take();
    bool watched = files_.watch();
    readSettings(folders_.front());
    ContextReading reading{folders_.front().limit, std::nullopt,
                           std::ranges::any_of(signs_, [](const QByteArray& path) {
                               return access(path.constData(), F_OK) == 0;
                           })};
    for (Folder& folder : folders_) {
        if (reading.turn) {
            folder.transcripts.forget();
            continue;
        }
        reading.turn = lastTurn(folder, changes);
        watched &= folder.transcripts.isWatched();
        if (reading.turn && !reading.limit) {
            readSettings(folder);
            reading.limit = folder.limit;
        }
    }
    reading.watched = watched;
    return reading;
}

void ContextReader::readSettings(Folder& folder) {
    struct stat info = {};
    if (stat(folder.settingsPath.constData(), &info) != 0) {
        folder.settingsStamp.reset();
        folder.limit.reset();
        return;
    }
    const Stamp stamp{info.st_dev, info.st_ino,
                      info.st_mtim.tv_sec * qint64(1'000'000'000) + info.st_mtim.tv_nsec,
                      info.st_size};
    if (folder.settingsStamp != stamp) {
        const std::optional<QByteArray> bytes = readFileEnd(folder.settingsPath, maxSettings + 1);
        folder.settingsStamp = bytes ? std::optional(stamp) : std::nullopt;
        folder.limit = bytes && bytes->size() <= maxSettings ? compactWindow(*bytes) : std::nullopt;
    }
}

/// From the newest transcript with a turn: a new session has none yet.
std::optional<ContextReading::Turn> ContextReader::lastTurn(Folder& folder,
                                                            const FolderChanges::Changes& changes) {
    const std::vector<ReadTranscript> before = std::exchange(folder.read, {});
    for (const Transcript& transcript : folder.transcripts.newest(changes)) {
        const auto known = std::ranges::find(before, transcript, &ReadTranscript::transcript);
        const auto usage =
            known != before.end() ? std::optional(known->usage) : readUsage(transcript.path);
        if (!usage) {
            continue;
        }
        folder.read.push_back({transcript, *usage});
        if (*usage) {
            const double seconds = static_cast<double>(transcript.modified) * nanosecond;
            return ContextReading::Turn{**usage, Date{seconds - referenceInstant}};
        }
    }
    return std::nullopt;
}

} // namespace ravelo
