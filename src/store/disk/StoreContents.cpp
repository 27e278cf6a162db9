#include "store/disk/StoreContents.h"

#include "base/Files.h"
#include "base/Uuid.h"
#include "store/disk/ShelfPaths.h"
#include "store/disk/StoreFile.h"
#include "vault/Vault.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

std::optional<StoreContents> parsed(const QByteArray& bytes) {
    std::optional<StoreData> data = decodeStore(bytes);
    if (!data) {
        return std::nullopt;
    }
    QList<QList<QUrl>> shelf = shelfStacks(std::exchange(data->shelfStacks, {}));
    return StoreContents{std::move(*data), std::move(shelf)};
}

QString waitingFolder(const Vault& vault) {
    return vault.folder() + u"/waiting"_s;
}

/// Of its newest clip.
Date dateOf(const StoreContents& contents) {
    Date newest;
    for (const ClipItem& clip : contents.data.clips) {
        newest = std::max(newest, clip.date);
    }
    return newest;
}

} // namespace

ReadStore readStore(const Vault& vault, const QString& path) {
    ReadStore stored;
    const Vault::Contents contents = vault.read(path);
    if (contents.kind == Vault::Contents::Kind::newer || isOfNewerStore(contents.bytes)) {
        stored.kind = ReadStore::Kind::newer;
        return stored;
    }
    auto store =
        contents.kind == Vault::Contents::Kind::readable ? parsed(contents.bytes) : std::nullopt;
    if (store) {
        stored.kind = ReadStore::Kind::read;
        stored.store = std::move(*store);
    } else if (presenceOf(QFile::encodeName(path)) != Presence::gone) {
        stored.kind = ReadStore::Kind::unreadable;
    }
    const QDir waiting(waitingFolder(vault));
    for (const QFileInfo& file : waiting.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed)) {
        const auto bytes = vault.bytes(file.filePath());
        if (auto one = bytes ? parsed(*bytes) : std::nullopt) {
            stored.waiting.append(std::move(*one));
            stored.waitingFiles.append(file.filePath());
        }
    }
    // The times of files can be equal, or lost with a copy of the home folder.
    std::ranges::stable_sort(stored.waiting, {}, dateOf);
    return stored;
}

QString newWaitingFile(const Vault& vault) {
    return waitingFolder(vault) + u'/' + uuidText(QUuid::createUuid());
}

} // namespace ravelo
