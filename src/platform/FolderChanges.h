#pragma once

#include <QByteArray>
#include <QSet>

namespace ravelo {

/// Reports which folders have changed since it was last asked, without waking anybody in between.
/// Any one thread. Paths are the system's bytes.
class FolderChanges {
public:
    virtual ~FolderChanges() = default;

    /// Watches a folder from now on; no change if it is watched already. False if changes cannot be
    /// seen: there is no such folder, it is on another machine, or too many are watched.
    [[nodiscard]] virtual bool watch(const QByteArray& folder) = 0;

    virtual void unwatch(const QByteArray& folder) = 0;

    struct Changes {
        QSet<QByteArray> folders; ///< An entry was added, removed, written or touched.
        bool lost = false;        ///< Changes were lost: any folder may have changed.
    };

    [[nodiscard]] virtual Changes take() = 0;
};

} // namespace ravelo
