#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#include <functional>
#include <optional>

namespace ravelo {

struct FolderEntry {
    QByteArray name;
    bool isEmpty = false; ///< A file of size 0; not set if all entries are old.
};

/// Everything in a folder. Replaces what was known of it.
struct FolderListing {
    /// What names mean that were not reported before.
    enum class Unknown {
        old,     ///< They were there before: the watch begins, or the folder was replaced.
        arrived, ///< They are new: changes were missed, or the folder was just created.
    };

    QList<FolderEntry> entries; ///< If they have arrived, the newest is last.
    Unknown unknown = Unknown::old;
};

struct FolderChange {
    enum class Kind {
        written,  ///< Closed after writing.
        movedIn,  ///< Got this name by a rename, complete as it is.
        movedOut, ///< Lost this name.
        deleted,
    };

    Kind kind = Kind::written;
    QByteArray name;
    bool isEmpty = false; ///< A file of size 0; set for `written` only.
    quint32 renaming = 0; ///< The same for both halves of one rename; 0 if none.
};

/// The listing, if any, comes first.
struct FolderNews {
    std::optional<FolderListing> listing;
    QList<FolderChange> changes;
};

/// Reports changes to the entries of a folder, in order and by the bytes of their names, but not to
/// the contents of subfolders. Main thread.
class FolderWatch {
public:
    virtual ~FolderWatch() = default;

    /// Watches `path`, beginning with a listing, for as long as the handle lives. The folder may be
    /// missing (an empty listing), be created or replaced, or be on a disk that does not answer, in
    /// which case nothing is reported. Never waits; combines quick changes. Costs nothing while
    /// nothing happens.
    [[nodiscard]] virtual Handle watch(const QByteArray& path,
                                       std::function<void(const FolderNews&)> notify) = 0;
};

} // namespace ravelo
