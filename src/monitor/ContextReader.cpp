#include "monitor/ContextReader.h"

#include "base/Files.h"

#include <sys/stat.h>

#include <utility>

namespace ravelo {

namespace {

constexpr qint64 largestSettings = qint64(1) << 20;
constexpr double nanosecond = 1e-9;

} // namespace

ContextReader::ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes)
    : settingsPath_(home + "/.claude/settings.json"),
      transcripts_(home + "/.claude/projects", std::move(changes)) {}

ContextReading ContextReader::read() {
    readSettings();
    ContextReading reading{limit_, std::nullopt};
    if (const std::optional<Transcript> newest = transcripts_.newest()) {
        readTranscript(*newest);
        if (usage_) {
            const double seconds = static_cast<double>(newest->modified) * nanosecond;
            reading.turn = ContextReading::Turn{*usage_, Date{seconds - referenceInstant}};
        }
    }
    return reading;
}

void ContextReader::readSettings() {
    struct stat info = {};
    if (stat(settingsPath_.constData(), &info) != 0) {
        settingsStamp_.reset();
        limit_.reset();
        return;
    }
    const Stamp stamp{info.st_dev, info.st_ino,
                      info.st_mtim.tv_sec * qint64(1'000'000'000) + info.st_mtim.tv_nsec,
                      info.st_size};
    if (settingsStamp_ != stamp) {
        const std::optional<QByteArray> bytes = readFileEnd(settingsPath_, largestSettings + 1);
        settingsStamp_ = bytes ? std::optional(stamp) : std::nullopt;
        limit_ = bytes && bytes->size() <= largestSettings ? compactWindow(*bytes) : std::nullopt;
    }
}

void ContextReader::readTranscript(const Transcript& transcript) {
    if (transcript == transcript_) {
        return;
    }
    const std::optional<QByteArray> window = readFileEnd(transcript.path, transcriptWindow);
    transcript_ = window ? std::optional(transcript) : std::nullopt;
    usage_ = window ? lastUsage(*window) : std::nullopt;
}

} // namespace ravelo
