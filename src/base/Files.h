#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace ravelo {

/// The whole file; nothing if it is missing or cannot be read. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFile(const QString& path);

enum class Presence {
    there,
    gone,
    unknown ///< For example on a mount whose server does not answer.
};

/// Removes a file, and what it leads to if it is a link. None is no failure.
[[nodiscard]] Result<void> removeWithTarget(const QString& path);

/// Whether a file or folder exists. May block for ever; any thread.
[[nodiscard]] Presence presenceOf(const QByteArray& path);

/// Whether it is a regular file or a link to one. May block for ever; any thread.
[[nodiscard]] bool isRegularFile(const QByteArray& path);

/// Whether it is a folder or a link to one. May block for ever; any thread.
[[nodiscard]] bool isFolder(const QByteArray& path);

/// Whether it is a folder of this user, without access for anyone else. Blocks; any thread.
[[nodiscard]] bool isPrivateFolder(const QByteArray& path);

/// The last `max` bytes of a regular file, or all of a shorter one; nothing if it is missing, not a
/// regular file or cannot be read. For files of other programs: does not wait for a writer if
/// there is a pipe instead. `path` is in the encoding of the system. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFileEnd(const QByteArray& path, qint64 max);

/// Atomically replaces `path`, or the file that a link there points to, with a file that only its
/// user can read (0600). On success it is synced to the disk. On an error, which can be shown to
/// the user, the old file is still there, unless only syncing the folder failed. Blocks; any
/// thread.
[[nodiscard]] Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes);

/// Makes sure that files created in or removed from the folder of `path` are so after a power cut,
/// too. Nothing to do if there is no such folder. Blocks; any thread.
[[nodiscard]] Result<void> syncFolderOf(const QString& path);

/// Whether `name` is a temporary file of `writeFileAtomically`, left by a program that was killed
/// while writing.
[[nodiscard]] bool isTemporaryName(const QString& name);

/// Creates a folder that only its user can enter (0700), with missing parents.
void makePrivateFolder(const QString& path);

/// Before a file that we cannot parse is overwritten: keeps it as "<name>.unreadable", followed by
/// the first free number if that exists. The file itself stays, unless it can only be moved.
/// Returns where it is kept, or empty if there was no file.
[[nodiscard]] Result<QString> setAsideUnreadable(const QString& path);

} // namespace ravelo
