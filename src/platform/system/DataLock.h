#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>

namespace ravelo {

/// Ownership of the data: two programs that rewrite the same store file would undo each other's
/// changes. A file beside the data names the process and the machine, and is locked while the
/// process lives. If the home folder is shared over the network, whether a process on another
/// machine still lives is not known and must not be guessed.
///
/// While there is a key file beside the data, they are encrypted. An earlier Ravelo, which would
/// take them for unreadable and begin anew, then has to stay away: the lock, which stays when we
/// end, names another machine in its eyes.
class DataLock {
public:
    enum class Claim {
        ifFree,
        takeOver ///< The owner notices before its next save and stops saving.
    };

    /// `path` is the lock file, `data` the file that it protects.
    DataLock(QString path, QString data, QString keyFile = {});

    ~DataLock();

    /// Gives up the data, if they are still ours; from then on they are not.
    void release();

    DataLock(const DataLock&) = delete;
    DataLock& operator=(const DataLock&) = delete;

    /// An error for the user if another process has the data. If the lock cannot be created at all,
    /// for example on a read-only disk, succeeds and tries again later.
    [[nodiscard]] Result<void> claim(Claim claim);

    /// Whether the data are ours; once lost, they stay lost. Blocks; any thread.
    [[nodiscard]] Result<void> check();

    /// The key file has come or gone. Blocks; any thread.
    void followKeyFile();

    /// Whether the process named in the file may be alive. Cheap.
    [[nodiscard]] static bool mayBeHeld(const QString& path);

private:
    [[nodiscard]] Result<void> acquire(Claim claim);
    [[nodiscard]] Result<void> keep(int file);
    void letGo();
    [[nodiscard]] bool isEncrypted() const;

    const QString path_;
    const QString data_;
    const QString keyFile_;
    std::mutex mutex_;
    int file_ = -1;
    QByteArray ours_;           ///< What we wrote; empty if we never had the lock.
    std::optional<Error> lost_; ///< The reason, once it is lost.
};

} // namespace ravelo
