#pragma once

#include "base/Date.h"
#include "base/OwnFile.h"
#include "store/Records.h"

#include <QByteArrayView>
#include <QList>
#include <QSet>
#include <QString>

namespace ravelo {

// The image files of the clips folder. All of this blocks and is for the worker.

/// Whether it begins like one.
[[nodiscard]] bool isPng(QByteArrayView bytes);

/// Writes an image, as PNG, and makes its folder if that was removed. An error, in words fit for
/// the user, if there is no image or it could not be written.
[[nodiscard]] Result<void> writeImage(const QString& path, const QByteArray& png,
                                      const OwnFile::Permission& mayWrite);

void removeImage(const QString& path, const OwnFile::Permission& mayWrite);

/// The names of all images of clips and snippets. Any thread.
[[nodiscard]] QSet<QString> imageNames(const StoreData& data);

/// A file that lies in the clips folder.
struct FoundImage {
    QString name;
    Date written;
};

/// Those that a crash, or clips that gave way to texts, left behind: named like an image of ours,
/// or like one that was being written, named by no record, and older than a day.
[[nodiscard]] QStringList orphanedImages(const QList<FoundImage>& found, const QSet<QString>& named,
                                         Date now);

/// Deletes the orphans of `folder`/clips, and what a killed save left of the store file. Never
/// while an unreadable store is kept beside it, which may name them.
void removeOrphanedImages(const QString& folder, const QSet<QString>& named, Date now,
                          const OwnFile::Permission& mayWrite);

} // namespace ravelo
