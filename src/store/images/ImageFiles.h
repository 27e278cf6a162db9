#pragma once

#include "base/Date.h"
#include "base/OwnFile.h"
#include "store/Records.h"

#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace ravelo {

class Vault;

// The image files of the clips folder. All functions block unless they say otherwise: for the
// worker.

/// Whether it starts like a PNG.
[[nodiscard]] bool isPng(QByteArrayView bytes);

/// Writes an image as PNG and creates a missing folder. An error, fit for the user, if there is no
/// image or it could not be written.
[[nodiscard]] Result<void> writeImage(const Vault& vault, const QString& path,
                                      const QByteArray& png, const OwnFile::Permission& mayWrite);

/// Deletes these files of one folder and syncs it. An error, fit for the user, if one is still
/// there.
[[nodiscard]] Result<void> removeImages(const QStringList& paths,
                                        const OwnFile::Permission& mayWrite);

/// Sizes in bytes, by name.
using FileSizes = QHash<QString, qint64>;

[[nodiscard]] FileSizes fileSizes(const QString& clipsFolder);

/// The names of all images of clips and snippets. Any thread.
[[nodiscard]] QSet<QString> imageNames(const StoreData& data);

/// Likewise, and of the files beside clips, whether they exist or not.
[[nodiscard]] QSet<QString> fileNames(const StoreData& data);

/// A file in the clips folder.
struct FoundImage {
    QString name;
    Date written;
};

/// Files left behind by a crash or by clips that texts pushed out: named like a file of ours or
/// like one being written, not in `named`, and older than a day.
[[nodiscard]] QStringList orphanedImages(const QList<FoundImage>& found, const QSet<QString>& named,
                                         Date now);

/// Deletes the orphans of `folder`/clips, and what a killed save left of the store file. Does
/// nothing while an unreadable store is kept beside it: that one may name them.
void removeOrphanedImages(const QString& folder, const QSet<QString>& named, Date now,
                          const OwnFile::Permission& mayWrite);

/// Deletes what a cleared history may have left: all files that are not in `named`, stores that
/// were put aside, and what killed saves left. With `since`, only images written later. Syncs. An
/// error, fit for the user, if something is still there.
[[nodiscard]] Result<void> removeLeftovers(const QString& folder, const QSet<QString>& named,
                                           std::optional<Date> since,
                                           const OwnFile::Permission& mayWrite);

} // namespace ravelo
