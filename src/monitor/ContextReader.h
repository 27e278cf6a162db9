#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"
#include "monitor/HandedOver.h"
#include "monitor/TranscriptFinder.h"
#include "monitor/TranscriptParser.h"
#include "monitor/WatchedFiles.h"

#include <QByteArray>
#include <QByteArrayList>

#include <memory>
#include <optional>
#include <vector>

namespace ravelo {

/// The newest session, according to Claude Code's files.
struct ContextReading {
    struct Turn {
        TurnUsage usage;
        Date modified;        ///< Of the transcript.
        QString project = {}; ///< Its name, for display.

        friend bool operator==(const Turn&, const Turn&) = default;
    };

    std::optional<qint64> limit; ///< If set by the user.
    std::optional<Turn> turn;    ///< If there is one that counts.
    bool installed = false;      ///< One of Claude Code's folders, or its program, is there.
    bool watched = false;        ///< Whatever changes this is reported by `changes`.
    std::optional<HandedOver> handed = {};
    std::optional<Seconds> untilOther = {}; ///< Then a newer session takes over if all is quiet.
};

/// Reads the files again only if they have changed. Any one thread; blocks on the disk.
class ContextReader {
public:
    /// `home` is the user's home folder. `otherFolders` are searched in their order if there is no
    /// turn below `home`.
    ContextReader(const QByteArray& home, std::unique_ptr<FolderChanges> changes,
                  const QByteArrayList& otherFolders = {});

    /// Which session counts: that of the newest turn, or the same one until it has been quiet for a
    /// minute.
    enum class Session { newest, steady };

    struct Choice {
        Session session = Session::newest;
        Date now = {}; ///< For a steady one.
    };

    [[nodiscard]] ContextReading read(const Choice& choice);

    [[nodiscard]] FolderChanges& changes() { return *changes_; }

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

    /// One of Claude Code's folders and what was read from it.
    struct Folder {
        QByteArray settingsPath;
        std::optional<Stamp> settingsStamp;
        std::optional<qint64> limit;
        TranscriptFinder transcripts;
        std::vector<ReadTranscript> read; ///< By the last call.
        QByteArray steady = {};           ///< Path of the transcript that counted last.
    };

    [[nodiscard]] static std::optional<Stamp> stampOf(const QByteArray& path);
    static void readSettings(Folder& folder);
    void readHandedOver();
    void readTurns(Folder& folder, const FolderChanges::Changes& changes, const Choice& choice,
                   ContextReading& reading) const;

    std::unique_ptr<FolderChanges> changes_;
    WatchedFiles files_; ///< All but the transcripts.
    QByteArray home_;
    std::optional<Stamp> handedStamp_;
    std::optional<HandedOver> handed_;
    std::vector<Folder> folders_;
    QByteArrayList signs_; ///< Paths of which one is there if Claude Code is.
};

} // namespace ravelo
