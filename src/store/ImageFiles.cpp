#include "store/ImageFiles.h"

#include "base/Files.h"
#include "base/Uuid.h"

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

bool isImageName(const QString& name) {
    return name.endsWith(extension) && parseUuid(name.chopped(extension.size()));
}

} // namespace

bool writeImage(const QString& path, const QByteArray& png, const OwnFile::Permission& mayWrite) {
    if (png.isEmpty() || !isAllowed(mayWrite)) {
        return false;
    }
    makePrivateFolder(QFileInfo(path).path());
    return writeFileAtomically(path, png).has_value();
}

void removeImage(const QString& path, const OwnFile::Permission& mayWrite) {
    if (isAllowed(mayWrite)) {
        QFile::remove(path);
    }
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

QStringList orphanedImages(const QList<FoundImage>& found, const QSet<QString>& named, Date now) {
    QStringList orphans;
    for (const FoundImage& image : found) {
        if (isImageName(image.name) && !named.contains(image.name) &&
            now.sinceReference - image.written.sinceReference > oneDay) {
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
    const QDir clips(folder + u"/clips"_s);
    QList<FoundImage> found;
    for (const QFileInfo& file : clips.entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        found.append({file.fileName(), toDate(file.lastModified())});
    }
    for (const QString& name : orphanedImages(found, named, now)) {
        QFile::remove(clips.filePath(name));
    }
}

} // namespace ravelo
