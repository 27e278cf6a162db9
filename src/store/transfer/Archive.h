#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <optional>

class QIODevice;

namespace ravelo {

/// The form of an exported store: a tar archive (POSIX ustar, IEEE 1003.1) with regular files only,
/// so that others can read it, too. Errors are for the user. Blocks.

/// A file in an archive.
struct ArchiveEntry {
    QByteArray name; ///< As in the archive: untrusted, at most 100 bytes.
    qint64 size = 0;
};

[[nodiscard]] Result<void> writeEntry(QIODevice& archive, const QByteArray& name,
                                      const QByteArray& contents);
/// After the last entry.
[[nodiscard]] Result<void> endArchive(QIODevice& archive);

/// Reads an untrusted archive from the beginning of a seekable device.
class ArchiveReader {
public:
    explicit ArchiveReader(QIODevice& archive) : archive_(archive) {}

    /// The next entry, nothing at the end, or an error if this is no such archive.
    [[nodiscard]] Result<std::optional<ArchiveEntry>> next();

    /// The contents of the current entry, once; an error if they are longer than `max`.
    [[nodiscard]] Result<QByteArray> contents(qint64 max);

private:
    QIODevice& archive_;
    qint64 size_ = 0;
    qint64 next_ = 0; ///< Where the next header begins.
};

} // namespace ravelo
