#pragma once

#include "platform/FolderChanges.h"

#include <QByteArray>

#include <map>
#include <optional>
#include <vector>

namespace ravelo {

/// A transcript file.
struct Transcript {
    QByteArray path;
    qint64 modified = 0; ///< Nanoseconds since 1970.
    qint64 size = 0;

    friend bool operator==(const Transcript&, const Transcript&) = default;
};

/// Finds the newest transcripts (".jsonl") in the folders below `root`. Remembers the newest of
/// each folder and lists only folders that have changed. Any one thread; blocks on the disk.
///
/// Folders that cannot be watched are listed repeatedly, the less often the more entries they have.
/// The newest transcript itself is checked every time.
class TranscriptFinder {
public:
    /// `changes` outlives it.
    TranscriptFinder(QByteArray root, FolderChanges& changes);

    /// The newest few, newest first; equal dates by name. `changes` are those since the last call.
    [[nodiscard]] std::vector<Transcript> newest(const FolderChanges::Changes& changes);

    /// Whatever changes the last answer is reported, unless there is no `root`.
    [[nodiscard]] bool isWatched() const;

    /// Stops watching; the next call starts over.
    void forget();

private:
    struct Folder {
        std::vector<Transcript> newest; ///< Newest first.
        bool isLink = false;            ///< Its target may change unnoticed.
        bool listed = false;
        bool known = false; ///< Listed and watched.
    };

    /// Identifies a folder, whatever its name.
    struct Identity {
        quint64 device = 0;
        quint64 number = 0;

        friend bool operator==(const Identity&, const Identity&) = default;
    };

    bool lookAtRoot(const FolderChanges::Changes& changes);
    void listRoot();
    void list(const QByteArray& path, Folder& folder);
    void lookAgain(Transcript& transcript);

    QByteArray root_;
    FolderChanges& changes_;
    std::optional<Identity> rootIdentity_;
    bool rootListed_ = false;
    bool rootKnown_ = false;
    int skipsLeft_ = 0; ///< Calls that still skip unwatched folders.
    int unwatched_ = 0; ///< Entries of unwatched folders listed in this call.
    std::map<QByteArray, Folder> folders_;
};

} // namespace ravelo
