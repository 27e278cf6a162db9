#pragma once

#include "platform/FolderChanges.h"

#include <QByteArray>

#include <map>
#include <optional>
#include <vector>

namespace ravelo {

/// A transcript as its folder lists it.
struct Transcript {
    QByteArray path;
    qint64 modified = 0; ///< Nanoseconds since 1970.
    qint64 size = 0;

    friend bool operator==(const Transcript&, const Transcript&) = default;
};

/// Finds the newest of the transcripts (".jsonl") one folder below `root`. Remembers the newest of
/// each folder and lists only folders that have changed. One thread, whichever; blocks on the disk.
///
/// Folders that cannot be watched are listed again and again, but the more there is to list
/// the more looks are left out in between. The newest transcript itself is looked at every time.
class Transcripts {
public:
    /// `changes` outlives it.
    Transcripts(QByteArray root, FolderChanges& changes);

    /// The newest few, newest first; of several with one date the first by name. `changes` are
    /// those since the last time.
    [[nodiscard]] std::vector<Transcript> newest(const FolderChanges::Changes& changes);

    /// Watches nothing any more, and starts over if asked again.
    void forget();

private:
    struct Folder {
        std::vector<Transcript> newest; ///< Newest first.
        bool isLink = false; ///< It may come to stand for another folder, which nobody would tell.
        bool listed = false;
        bool known = false; ///< Listed, and its changes are reported.
    };

    /// Of a file system's objects, whatever they are called at the moment.
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
    int leaveOut_ = 0;  ///< Looks that still skip the folders that cannot be watched.
    int unwatched_ = 0; ///< Entries of such folders that were listed in this look.
    std::map<QByteArray, Folder> folders_;
};

} // namespace ravelo
