#pragma once

#include <QByteArray>
#include <QSet>

namespace ravelo {

/// Tells which folders have changed since it was last asked, and wakes nobody in between. One
/// thread, whichever. Paths as the system has them.
class FolderChanges {
public:
    virtual ~FolderChanges() = default;

    /// Watches a folder from now on; one that is watched already stays so. False where nobody
    /// would tell: there is no such folder, it is on another machine, or too many are watched.
    [[nodiscard]] virtual bool watch(const QByteArray& folder) = 0;

    virtual void unwatch(const QByteArray& folder) = 0;

    struct Changes {
        QSet<QByteArray> folders; ///< With an entry that came, went, was written to or dated anew.
        bool lost = false;        ///< There were more than anybody counted: any may have changed.
    };

    [[nodiscard]] virtual Changes take() = 0;
};

} // namespace ravelo
