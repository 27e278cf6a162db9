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
    bool isEmpty = false; ///< A file without contents; unknown where all that is listed is old.
};

/// All that a folder holds. What was known of it before is void.
struct FolderListing {
    /// What the names say that were not told of before.
    enum class Unknown {
        old,     ///< They were there already: the watch begins, or another folder is in its place.
        arrived, ///< They came meanwhile: something was missed, or the folder was just made.
    };

    QList<FolderEntry> entries; ///< The one that came last is last, where they have arrived.
    Unknown unknown = Unknown::old;
};

struct FolderChange {
    enum class Kind {
        written,  ///< Closed by somebody who wrote to it.
        movedIn,  ///< Got this name, by a renaming or from elsewhere, as it is.
        movedOut, ///< Has this name no more.
        deleted,
    };

    Kind kind = Kind::written;
    QByteArray name;
    bool isEmpty = false; ///< A file without contents, as far as `written` tells.
    quint32 renaming = 0; ///< The same for the two halves of one renaming; 0 for none.
};

/// First the listing, where there is one.
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
