#pragma once

#include "platform/FolderChanges.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <optional>

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
class Transcripts {
public:
    Transcripts(QByteArray root, std::unique_ptr<FolderChanges> changes);

    /// Of several with one date the first by name. Nothing where there is none.
    [[nodiscard]] std::optional<Transcript> newest();

private:
    struct Folder {
        std::optional<Transcript> newest;
        bool isLink = false; ///< It may come to stand for another folder, which nobody would tell.
        bool known = false;  ///< Listed, and what changes is told.
    };

    /// Of a file system's objects, whatever they are called at the moment.
    struct Identity {
        quint64 device = 0;
        quint64 number = 0;

        friend bool operator==(const Identity&, const Identity&) = default;
    };

    bool lookAtRoot(const FolderChanges::Changes& changes);
    void forget();
    void listRoot();
    void list(const QByteArray& path, Folder& folder);

    QByteArray root_;
    std::unique_ptr<FolderChanges> changes_;
    std::optional<Identity> rootIdentity_;
    bool rootKnown_ = false;
    std::map<QByteArray, Folder> folders_;
};

} // namespace ravelo
