#include "monitor/ContextReader.h"

#include "base/Files.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo {

namespace {

constexpr qint64 maxSettings = qint64(1) << 20;
constexpr double nanosecond = 1e-9;
constexpr Seconds quiet(60);

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

Date modified(const Transcript& transcript) {
    return {static_cast<double>(transcript.modified) * nanosecond - referenceInstant};
}

/// The name of the folder it is in.
QString storedFolder(const Transcript& transcript) {
    return QFile::decodeName(transcript.path).section(u'/', -2, -2);
}

} // namespace

ContextReader::ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                             const QByteArrayList& otherFolders)
    : changes_(std::move(changes)), files_(*changes_, home), home_(home) {
    const QByteArrayList folders = QByteArrayList{home + "/.claude"} + otherFolders;
    signs_ = folders + QByteArrayList{home + "/.local/bin/claude"};
    for (const QByteArray& path : folders) {
        folders_.push_back(
            {path + "/settings.json", {}, {}, TranscriptFinder(path + "/projects", *changes_), {}});
        files_.add(path + "/settings.json", FolderChanges::What::contents);
    }
    files_.add(signs_.back(), FolderChanges::What::names);
    files_.add(handedOverFile(home), FolderChanges::What::contents);
}

ContextReading ContextReader::read(const Choice& choice) {
    const FolderChanges::Changes changes = changes_->take();
    bool watched = files_.watch();
    readSettings(folders_.front());
    ContextReading reading{folders_.front().limit, std::nullopt,
                           std::ranges::any_of(signs_, [](const QByteArray& path) {
                               return access(path.constData(), F_OK) == 0;
                           })};
    readHandedOver();
    reading.handed = handed_;
    for (Folder& folder : folders_) {
        if (reading.turn) {
            folder.transcripts.forget();
            continue;
        }
        readTurns(folder, changes, choice, reading);
        watched &= folder.transcripts.isWatched();
        if (reading.turn && !reading.limit) {
            readSettings(folder);
            reading.limit = folder.limit;
        }
    }
    reading.watched = watched;
    return reading;
}

std::optional<ContextReader::Stamp> ContextReader::stampOf(const QByteArray& path) {
    struct stat info = {};
    if (stat(path.constData(), &info) != 0) {
        return std::nullopt;
    }
    return Stamp{info.st_dev, info.st_ino,
                 info.st_mtim.tv_sec * qint64(1'000'000'000) + info.st_mtim.tv_nsec, info.st_size};
}

void ContextReader::readSettings(Folder& folder) {
    const std::optional<Stamp> stamp = stampOf(folder.settingsPath);
    if (!stamp) {
        folder.settingsStamp.reset();
        folder.limit.reset();
    } else if (folder.settingsStamp != stamp) {
        const std::optional<QByteArray> bytes = readFileEnd(folder.settingsPath, maxSettings + 1);
        folder.settingsStamp = bytes ? stamp : std::nullopt;
        folder.limit = bytes && bytes->size() <= maxSettings ? compactWindow(*bytes) : std::nullopt;
    }
}

/// A malformed file changes nothing.
void ContextReader::readHandedOver() {
    const std::optional<Stamp> stamp = stampOf(handedOverFile(home_));
    if (!stamp) {
        handed_.reset();
    } else if (handedStamp_ != stamp) {
        if (auto handed = loadHandedOver(home_)) {
            handed_ = std::move(handed);
        }
    }
    handedStamp_ = stamp;
}

/// The newest transcripts that have a turn: a new session has none yet.
void ContextReader::readTurns(Folder& folder, const FolderChanges::Changes& changes,
                              const Choice& choice, ContextReading& reading) const {
    const std::vector<ReadTranscript> before = std::exchange(folder.read, {});
    const ReadTranscript* chosen = nullptr;
    const std::vector<Transcript> newest = folder.transcripts.newest(changes);
    folder.read.reserve(newest.size()); // `chosen` points into it.
    for (const Transcript& transcript : newest) {
        const double silence = choice.now.sinceReference - modified(transcript).sinceReference;
        const bool isSteady = choice.session == Session::steady &&
                              transcript.path == folder.steady && std::abs(silence) < quiet.count();
        if (chosen != nullptr && !isSteady) {
            continue;
        }
        const auto known = std::ranges::find(before, transcript, &ReadTranscript::transcript);
        const auto usage =
            known != before.end() ? std::optional(known->usage) : readUsage(transcript.path);
        if (!usage) {
            continue;
        }
        folder.read.push_back({transcript, *usage});
        if (*usage) {
            if (chosen != nullptr) { // A newer one waits.
                reading.untilOther = quiet - Seconds(silence);
            }
            chosen = &folder.read.back();
        }
    }
    if (chosen != nullptr) {
        folder.steady = chosen->transcript.path;
        reading.turn = ContextReading::Turn{*chosen->usage, modified(chosen->transcript),
                                            projectName(chosen->usage->folder,
                                                        storedFolder(chosen->transcript),
                                                        QFile::decodeName(home_))};
    }
}

} // namespace ravelo
