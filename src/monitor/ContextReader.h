#pragma once

#include "base/Date.h"
#include "monitor/Transcript.h"
#include "monitor/Transcripts.h"

#include <QByteArray>
#include <QByteArrayList>

#include <memory>
#include <optional>
#include <vector>

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
    bool installed = false;      ///< One of Claude Code's folders, or its program, is there.
};

/// Reads the files, and none again that could be read and has not changed. One thread, whichever;
/// blocks on the disk.
class ContextReader {
public:
    /// `home` is the user's home folder. `otherFolders` may hold Claude Code's files too, and are
    /// looked at in their order if no turn is found below `home`.
    ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                  const QByteArrayList& otherFolders = {});

    [[nodiscard]] ContextReading read();

private:
    struct Stamp {
        quint64 device = 0;
        quint64 number = 0;
        qint64 modified = 0; ///< Nanoseconds since 1970.
        qint64 size = 0;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    struct ReadTranscript {
        Transcript transcript;
        std::optional<TurnUsage> usage;
    };

    /// A folder of Claude Code's, and what was read of it.
    struct Folder {
        QByteArray settingsPath;
        std::optional<Stamp> settingsStamp;
        std::optional<qint64> limit;
        Transcripts transcripts;
        std::vector<ReadTranscript> read; ///< Those of the last look.
    };

    static void readSettings(Folder& folder);
    static std::optional<ContextReading::Turn> lastTurn(Folder& folder,
                                                        const FolderChanges::Changes& changes);

    std::unique_ptr<FolderChanges> changes_;
    std::vector<Folder> folders_;
    QByteArrayList signs_; ///< Paths of which one is there if Claude Code is.
};

} // namespace ravelo
