#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>

namespace ravelo {

/// Says whose the data are: two programs that rewrite one store file would undo each other. A file
/// beside the data that names its process and its machine, and that the kernel keeps locked as long
/// as the process lives. On a home that is shared over the network only what is in the file says
/// whether it lives on another machine, so that must not be guessed.
class DataLock {
public:
    enum class Claim {
        ifFree,
        takeOver ///< Whoever has it: they notice before their next save and stop saving.
    };

    /// `path` is the lock's own, `data` the file that is written under it.
    DataLock(QString path, QString data);

    /// Gives the lock back if it is still ours.
    ~DataLock();

    DataLock(const DataLock&) = delete;
    DataLock& operator=(const DataLock&) = delete;

    /// An error, in words for the user, if somebody else has the data. If the lock cannot be made
    /// at all, as on a read-only disk, it is left for later.
    [[nodiscard]] Result<void> claim(Claim claim);

    /// Whether the data are still ours, or are now. Once they are not, it stays so. Blocks; any
    /// thread.
    [[nodiscard]] Result<void> check();

    /// Whether a process that is named there may live. Cheap.
    [[nodiscard]] static bool mayBeHeld(const QString& path);

private:
    [[nodiscard]] Result<void> take(Claim claim);
    [[nodiscard]] Result<void> keep(int file);
    void letGo();

    const QString path_;
    const QString data_;
    std::mutex mutex_;
    int file_ = -1;
    QByteArray ours_;           ///< What we wrote into it; empty if we never had it.
    std::optional<Error> lost_; ///< Why, once we do not have it any more.
};

} // namespace ravelo
