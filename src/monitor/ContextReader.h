#pragma once

#include "base/Date.h"
#include "monitor/Transcript.h"
#include "monitor/Transcripts.h"

#include <QByteArray>

#include <optional>

namespace ravelo {

/// What Claude Code's files say of the newest session.
struct ContextReading {
    struct Turn {
        TurnUsage usage;
        Date modified; ///< Of the transcript.

        friend bool operator==(const Turn&, const Turn&) = default;
    };

    std::optional<qint64> limit; ///< Where the settings have one.
    std::optional<Turn> turn;    ///< Where there is one that counts.
};

/// Reads the files, and none again that could be read and has not changed. One thread, whichever;
/// blocks on the disk.
class ContextReader {
public:
    /// `home` is the user's home folder.
    ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes);

    [[nodiscard]] ContextReading read();

private:
    void readSettings();
    void readTranscript(const Transcript& transcript);

    struct Stamp {
        quint64 device = 0;
        quint64 number = 0;
        qint64 modified = 0; ///< Nanoseconds since 1970.
        qint64 size = 0;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    QByteArray settingsPath_;
    std::optional<Stamp> settingsStamp_;
    std::optional<qint64> limit_;
    Transcripts transcripts_;
    std::optional<Transcript> transcript_; ///< The one that was read.
    std::optional<TurnUsage> usage_;       ///< Of that transcript.
};

} // namespace ravelo
