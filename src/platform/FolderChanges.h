#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QSet>

#include <functional>

namespace ravelo {

/// Reports which folders have changed since it was last asked. Any one thread, except for
/// `onChange`. Paths are the system's bytes.
class FolderChanges {
public:
    enum class What {
        names,   ///< An entry was added, removed or renamed.
        contents ///< Or was written or touched.
    };

    virtual ~FolderChanges() = default;

    /// Watches a folder from now on; no change if it is watched already. False if changes cannot be
    /// seen: there is no such folder, it is on another machine, or too many are watched.
    [[nodiscard]] virtual bool watch(const QByteArray& folder, What what) = 0;

    virtual void unwatch(const QByteArray& folder) = 0;

    struct Changes {
        QSet<QByteArray> folders;
        bool lost = false; ///< Changes were lost: any folder may have changed.
    };

    [[nodiscard]] virtual Changes take() = 0;

    /// Calls back once, as soon as there are changes to take. Main thread, also if another one
    /// takes them; not while it does.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
