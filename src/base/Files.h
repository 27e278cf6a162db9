#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace ravelo {

/// The whole file, or nothing where it is missing or cannot be read. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFile(const QString& path);

enum class Presence {
    there,
    gone,
    unknown ///< It cannot be told, as on a mount whose server is gone.
};

/// Whether a file or folder is there. Blocks, maybe for ever; any thread.
[[nodiscard]] Presence presenceOf(const QByteArray& path);

/// Whether a file is there, by a link or not, that is no folder, pipe or device. Likewise.
[[nodiscard]] bool isRegularFile(const QByteArray& path);

/// Whether a folder is there, by a link or not. Likewise.
[[nodiscard]] bool isFolder(const QByteArray& path);

/// The last `most` bytes of a regular file, all of a shorter one; nothing where it is missing, is
/// something else or cannot be read. For files of other programs: never waits for a writer, as a
/// pipe in the file's place would have it. `path` as the system has it. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFileEnd(const QByteArray& path, qint64 most);

/// Replaces `path` (or the file a link there points to) in one step with a file that only its user
/// can read (0600): anyone who looks, at any moment, finds the old or the new contents whole. On
/// success the disk has them. On an error, named in words fit for the user, the old file is still
/// there, unless only its folder could not be brought to the disk. Blocks; any thread.
[[nodiscard]] Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes);

/// Makes a folder, and what is missing above it, that only its user can enter (0700).
void makePrivateFolder(const QString& path);

/// Keeps a file that makes no sense to us out of the way of the next save, beside itself as
/// "<name>.unreadable" or, if that is taken, with the first free number after it. The file itself
/// stays, unless it can only be moved. Returns where it is kept, empty if there was no file; an
/// error if it could not be kept.
[[nodiscard]] Result<QString> setAsideUnreadable(const QString& path);

} // namespace ravelo
