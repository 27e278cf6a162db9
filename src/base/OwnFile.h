#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace ravelo {

/// The outcome of a save.
struct SaveOutcome {
    enum class Kind {
        saved,
        failed,   ///< May succeed later.
        forbidden ///< We may not write the file any more.
    };

    Kind kind = Kind::saved;
    QString reason; ///< Unless saved; for the user.
    QString
        putAside; ///< Where the unreadable file that was there is kept; empty if there was none.
};

/// A file that is always written as a whole. If what is there at first cannot be parsed, it is put
/// aside before the first write. Created on the main thread, then used by the worker's jobs only.
class OwnFile {
public:
    enum class Contents { ours, unreadable };
    /// Whether we may write now; an error gives the reason. Any thread.
    using Permission = std::function<Result<void>()>;

    /// Without one every write is allowed.
    OwnFile(QString path, Contents contents, Permission permission)
        : path_(std::move(path)), contents_(contents), permission_(std::move(permission)) {}

    /// Creates a missing folder (0700). Blocks until it is synced.
    [[nodiscard]] SaveOutcome write(const QByteArray& bytes);

private:
    QString path_;
    Contents contents_;
    Permission permission_;
};

} // namespace ravelo
