#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ravelo {

/// The whole file, or nothing where it is missing or cannot be read. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFile(const QString& path);

/// Whether a file or folder is there. Blocks; any thread.
[[nodiscard]] bool fileExists(const QByteArray& path);

/// Whether a file is there, by a link or not, that is no folder, pipe or device. Likewise.
[[nodiscard]] bool isRegularFile(const QByteArray& path);

/// Whether a folder is there, by a link or not. Likewise.
[[nodiscard]] bool isFolder(const QByteArray& path);

/// The last `most` bytes of a regular file, all of a shorter one; nothing where it is missing, is
/// something else or cannot be read. For files of other programs: never waits for a writer, as a
/// pipe in the file's place would have it. `path` as the system has it. Blocks; any thread.
[[nodiscard]] std::optional<QByteArray> readFileEnd(const QByteArray& path, qint64 most);

/// Replaces `path` in one step with a file that only its user can read (0600): whoever looks, at
/// whatever moment, finds the old or the new contents whole. Blocks until the disk has them; any
/// thread. False, with the old file untouched, where it could not be written.
[[nodiscard]] bool writeFileAtomically(const QString& path, const QByteArray& bytes);

/// Makes a folder, and what is missing above it, that only its user can enter (0700).
void makePrivateFolder(const QString& path);

/// Keeps a file that makes no sense to us out of the way of the next save, beside itself as
/// "<name>.unreadable" or, where that is taken, with the first free number behind it. The file is
/// copied, or moved where it cannot be read. Nothing happens where there is no file.
void setAsideUnreadable(const QString& path);

} // namespace ravelo
