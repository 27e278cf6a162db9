#include "store/transfer/Transfer.h"

#include "base/Uuid.h"
#include "decode/Protocol.h"
#include "platform/ImageDecoder.h"
#include "store/disk/ShelfPaths.h"
#include "store/disk/StoreFile.h"
#include "store/history/ClipForms.h"
#include "store/images/ImageFiles.h"
#include "store/transfer/Archive.h"
#include "vault/Vault.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxStore = qint64(512) << 20; ///< Bytes.
constexpr QByteArrayView storeEntry("store.json");
constexpr QByteArrayView fileEntries("clips/");

QString clipsOf(const Vault& vault) {
    return vault.folder() + u"/clips/"_s;
}

/// Calls `change` with the image's name of every record that has one; drops clips and takes images
/// off snippets for which it returns false.
template <typename Change>
void forImages(StoreData& data, const Change& change) {
    QList<ClipItem> kept;
    for (ClipItem& clip : data.clips) {
        if (clip.imageFileName.isEmpty() || change(clip.imageFileName)) {
            kept.append(std::move(clip));
        }
    }
    data.clips = std::move(kept);
    for (Snippet& snippet : data.snippets) {
        if (!snippet.imageFileName.isEmpty() && !change(snippet.imageFileName)) {
            snippet.imageFileName.clear();
        }
    }
}

Result<StoreData> storeIn(QIODevice& archive) {
    ArchiveReader reader(archive);
    while (true) {
        const auto entry = reader.next();
        if (!entry) {
            return tl::unexpected(entry.error());
        }
        if (!*entry) {
            return failure(u"it is no archive of Ravelo"_s);
        }
        if ((*entry)->name == storeEntry) {
            return reader.contents(maxStore).and_then([](const QByteArray& bytes) {
                auto data = decodeStore(bytes);
                return data ? Result<StoreData>(std::move(*data))
                            : failure(u"its store.json cannot be read"_s);
            });
        }
    }
}

/// New file names by those in the archive; empty for images that cannot be decoded. What is written
/// before an error is in it, too.
using Names = QHash<QString, QString>;

/// Whether it could be decoded.
Result<bool> importImage(const QByteArray& bytes, const QString& path, const Vault& vault,
                         ImageDecoder& decoder, const OwnFile::Permission& mayWrite) {
    const QByteArray png = decoder.png(bytes);
    return png.isEmpty() ? Result<bool>(false)
                         : writeImage(vault, path, png, mayWrite).map([] { return true; });
}

Result<bool> importForms(const QByteArray& bytes, const QString& path, const Vault& vault,
                         const OwnFile::Permission& mayWrite) {
    const auto kept = decodeForms(bytes);
    return kept ? vault.write(path, encodeForms(*kept), mayWrite).map([] { return true; })
                : failure(u"the forms of one of its clips cannot be read"_s);
}

/// `wanted` are the names of images; `forms` has the new names of the others.
Result<void> importFiles(QIODevice& archive, const QSet<QString>& wanted, const Names& forms,
                         const Vault& vault, ImageDecoder& decoder,
                         const OwnFile::Permission& mayWrite, Names& names) {
    ArchiveReader reader(archive);
    while (true) {
        const auto entry = reader.next();
        if (!entry) {
            return tl::unexpected(entry.error());
        }
        if (!*entry) {
            return {};
        }
        const QString name = QString::fromUtf8((*entry)->name.mid(fileEntries.size()));
        const bool isForms = forms.contains(name);
        if (!(*entry)->name.startsWith(fileEntries) || !(wanted.contains(name) || isForms) ||
            names.contains(name)) {
            continue;
        }
        const Result<QByteArray> bytes = reader.contents(decode::maxBytes);
        if (!bytes) {
            return tl::unexpected(bytes.error());
        }
        const QString fresh =
            isForms ? forms.value(name) : uuidText(QUuid::createUuid()) + u".png"_s;
        const QString path = clipsOf(vault) + fresh;
        const Result<bool> written = isForms ? importForms(*bytes, path, vault, mayWrite)
                                             : importImage(*bytes, path, vault, decoder, mayWrite);
        if (!written) {
            return tl::unexpected(written.error());
        }
        names.insert(name, *written ? fresh : QString());
    }
}

/// Gives every record a new id. Returns the new names of the files beside clips.
Names renewIds(StoreData& data) {
    Names forms;
    for (ClipItem& clip : data.clips) {
        const QString before = formsFileName(clip.id);
        clip.id = QUuid::createUuid();
        if (!forms.contains(before)) { // Of clips with the same id only the first has them.
            forms.insert(before, formsFileName(clip.id));
        }
    }
    for (Snippet& snippet : data.snippets) {
        snippet.id = QUuid::createUuid();
    }
    for (Stroke& stroke : data.drawing) {
        stroke.id = QUuid::createUuid();
    }
    return forms;
}

/// The written files, except those that `used` names.
QStringList filesOf(const Names& names, const QSet<QString>& used, const Vault& vault) {
    QStringList paths;
    for (const QString& name : names) {
        if (!name.isEmpty() && !used.contains(name)) {
            paths.append(clipsOf(vault) + name);
        }
    }
    return paths;
}

/// Those of the clips that are exported.
Result<void> exportForms(QIODevice& archive, const StoreData& data, const Vault& vault) {
    for (const ClipItem& clip : data.clips) {
        const QString name = formsFileName(clip.id);
        const auto bytes =
            clip.secret.isEmpty() ? vault.bytes(clipsOf(vault) + name) : std::nullopt;
        if (!bytes || !decodeForms(*bytes)) {
            continue;
        }
        if (auto done = writeEntry(archive, fileEntries.toByteArray() + name.toUtf8(), *bytes);
            !done) {
            return done;
        }
    }
    return {};
}

} // namespace

Result<int> exportStore(StoreContents contents, const Vault& vault, const QString& path) {
    if (QFileInfo::exists(path)) {
        return failure(u"%1 exists already"_s.arg(path));
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        return failure(u"%1: %2"_s.arg(path, file.errorString()));
    }
    Result<void> done;
    QHash<QString, bool> images;
    int missing = 0;
    forImages(contents.data, [&](const QString& fileName) {
        const QString name = QFileInfo(fileName).fileName();
        if (const auto known = images.constFind(name); known != images.cend()) {
            return known.value();
        }
        const auto bytes = vault.bytes(clipsOf(vault) + name);
        missing += bytes ? 0 : 1;
        images[name] = bytes.has_value();
        if (bytes && done) {
            done = writeEntry(file, fileEntries.toByteArray() + name.toUtf8(), *bytes);
        }
        return bytes.has_value();
    });
    contents.data.shelfStacks = shelfPaths(contents.shelf);
    if (done) {
        done = exportForms(file, contents.data, vault);
    }
    if (done) {
        done = writeEntry(file, storeEntry.toByteArray(), encodeStore(contents.data));
    }
    if (done) {
        done = endArchive(file);
    }
    if (!done) {
        return failure(u"%1: %2"_s.arg(path, done.error().message));
    }
    return file.commit() ? Result<int>(missing)
                         : failure(u"%1: %2"_s.arg(path, file.errorString()));
}

Result<Import> importStore(const QString& path, const Vault& vault, ImageDecoder& decoder,
                           const OwnFile::Permission& mayWrite) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return failure(u"%1 cannot be read"_s.arg(path));
    }
    Result<StoreData> data = storeIn(file);
    Names names;
    const Names forms = data ? renewIds(*data) : Names();
    const Result<void> files =
        data ? importFiles(file, imageNames(*data), forms, vault, decoder, mayWrite, names)
             : Result<void>(tl::unexpected(data.error()));
    bool complete = files.has_value();
    if (complete) {
        forImages(*data, [&](QString& name) {
            const auto fresh = names.constFind(QFileInfo(name).fileName());
            complete = complete && fresh != names.cend();
            name = complete ? *fresh : QString();
            return !name.isEmpty();
        });
    }
    const QSet<QString> used = complete ? fileNames(*data) : QSet<QString>();
    (void)removeImages(filesOf(names, used, vault), mayWrite);
    if (!complete) {
        return failure(u"%1: %2"_s.arg(path, files ? u"one of its images is missing"_s
                                                   : files.error().message));
    }
    QList<QList<QUrl>> shelf = shelfStacks(std::exchange(data->shelfStacks, {}));
    return Import{{std::move(*data), std::move(shelf)}, int(std::ranges::count(names, QString()))};
}

} // namespace ravelo
