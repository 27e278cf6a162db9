#include "store/images/ImageFiles.h"

#include "base/Files.h"
#include "base/Uuid.h"
#include "decode/Formats.h"
#include "store/history/ClipForms.h"
#include "vault/Vault.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double oneDay = 86400;
constexpr auto extension = ".png"_L1;

bool isAllowed(const OwnFile::Permission& mayWrite) {
    return !mayWrite || mayWrite();
}

bool isOld(Date written, Date now) {
    return now.sinceReference - written.sinceReference > oneDay;
}

/// The file that a killed save was to replace; empty if `name` is not of such a save.
QString replacedBy(const QString& name) {
    return isTemporaryName(name) ? name.chopped(7) : QString();
}

bool isOurName(const QString& name) {
    return (name.endsWith(extension) && parseUuid(name.chopped(extension.size()))) ||
           isFormsFileName(name);
}

} // namespace

bool isPng(QByteArrayView bytes) {
    return decode::formatOf(bytes) == decode::Format::png;
}

Result<void> writeImage(const Vault& vault, const QString& path, const QByteArray& png,
                        const OwnFile::Permission& mayWrite) {
    return png.isEmpty() ? failure(u"there is no image"_s) : vault.write(path, png, mayWrite);
}

Result<void> removeImages(const QStringList& paths, const OwnFile::Permission& mayWrite) {
    if (paths.isEmpty()) {
        return {};
    }
    if (Result<void> allowed = mayWrite ? mayWrite() : Result<void>(); !allowed) {
        return allowed;
    }
    Result<void> done;
    for (const QString& path : paths) {
        if (!QFile::remove(path) && QFileInfo(path).isFile()) {
            done = failure(QCoreApplication::translate("ravelo::Store", "%1 could not be removed")
                               .arg(QFileInfo(path).fileName()));
        }
    }
    const Result<void> synced = syncFolderOf(paths.first());
    return done ? synced : done;
}

FileSizes fileSizes(const QString& clipsFolder) {
    FileSizes sizes;
    for (const QFileInfo& file : QDir(clipsFolder).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        sizes.insert(file.fileName(), file.size());
    }
    return sizes;
}

QSet<QString> imageNames(const StoreData& data) {
    QSet<QString> names;
    for (const ClipItem& clip : data.clips) {
        names.insert(QFileInfo(clip.imageFileName).fileName());
    }
    for (const Snippet& snippet : data.snippets) {
        names.insert(QFileInfo(snippet.imageFileName).fileName());
    }
    return names;
}

QSet<QString> fileNames(const StoreData& data) {
    QSet<QString> names = imageNames(data);
    for (const ClipItem& clip : data.clips) {
        if (clip.secret.isEmpty()) {
            names.insert(formsFileName(clip.id));
        }
    }
    return names;
}

QStringList orphanedImages(const QList<FoundImage>& found, const QSet<QString>& named, Date now) {
    QStringList orphans;
    for (const FoundImage& image : found) {
        const bool isOurs = isOurName(image.name) || isOurName(replacedBy(image.name));
        if (isOurs && !named.contains(image.name) && isOld(image.written, now)) {
            orphans.append(image.name);
        }
    }
    return orphans;
}

void removeOrphanedImages(const QString& folder, const QSet<QString>& named, Date now,
                          const OwnFile::Permission& mayWrite) {
    constexpr auto any = QDir::AllEntries | QDir::Hidden | QDir::System;
    if (!isAllowed(mayWrite) || !QDir(folder).entryList({u"*.unreadable*"_s}, any).isEmpty()) {
        return;
    }
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        if (replacedBy(file.fileName()) == "store.json"_L1 &&
            isOld(toDate(file.lastModified()), now)) {
            QFile::remove(file.filePath());
        }
    }
    const QDir clips(folder + u"/clips"_s);
    QList<FoundImage> found;
    for (const QFileInfo& file : clips.entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        found.append({file.fileName(), toDate(file.lastModified())});
    }
    for (const QString& name : orphanedImages(found, named, now)) {
        QFile::remove(clips.filePath(name));
    }
}

Result<void> removeLeftovers(const QString& folder, const QSet<QString>& named,
                             std::optional<Date> since, const OwnFile::Permission& mayWrite) {
    constexpr auto files = QDir::Files | QDir::Hidden | QDir::System;
    QStringList beside;
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"store.json.*"_s}, files)) {
        if (!since) {
            beside.append(file.filePath());
        }
    }
    QStringList images;
    for (const QFileInfo& file : QDir(folder + u"/clips"_s).entryInfoList(files)) {
        const QString name = file.fileName();
        const bool isLeft =
            isOurName(replacedBy(name)) || (isOurName(name) && !named.contains(name));
        if (isLeft && (!since || *since < toDate(file.lastModified()))) {
            images.append(file.filePath());
        }
    }
    const Result<void> done = removeImages(images, mayWrite);
    const Result<void> others = removeImages(beside, mayWrite);
    return done ? others : done;
}

} // namespace ravelo
