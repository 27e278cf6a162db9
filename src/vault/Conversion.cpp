#include "vault/Conversion.h"

#include "base/Files.h"
#include "vault/Vault.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto anyFile = QDir::Files | QDir::Hidden | QDir::System;

Result<void> allowed(const OwnFile::Permission& mayWrite) {
    return mayWrite ? mayWrite() : Result<void>();
}

/// A folder that does not exist is one without files.
QStringList filesIn(const QString& folder, const QStringList& names) {
    QStringList paths;
    for (const QFileInfo& file : QDir(folder).entryInfoList(names, anyFile)) {
        paths.append(file.filePath());
    }
    return paths;
}

/// The files that may be plain or encrypted.
QStringList storedFiles(const QString& folder) {
    QStringList paths = filesIn(folder, {u"store.json"_s, u"store.json.unreadable*"_s}) +
                        filesIn(folder + u"/clips"_s, {u"*"_s});
    paths.removeIf([](const QString& path) { return isTemporaryName(path); });
    return paths;
}

/// What killed saves left.
QStringList partialFiles(const QString& folder) {
    QStringList paths = filesIn(folder, {u"store.json.*"_s, u"key.*"_s}) +
                        filesIn(folder + u"/clips"_s, {u"*.png.*"_s, u"*.forms.*"_s}) +
                        filesIn(folder + u"/waiting"_s, {u"*"_s});
    paths.removeIf([](const QString& path) { return !isTemporaryName(path); });
    return paths;
}

Result<void> convertFile(const Vault& vault, const QString& path,
                         const OwnFile::Permission& mayWrite) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QFileInfo::exists(path) ? failure(u"%1 could not be read"_s.arg(path))
                                       : Result<void>();
    }
    if (vault.isAsWanted(formOf(file.read(formLength)))) {
        return {};
    }
    file.close();
    const Vault::Contents contents = vault.read(path);
    switch (contents.kind) {
    case Vault::Contents::Kind::readable:
        return vault.write(path, contents.bytes, mayWrite);
    case Vault::Contents::Kind::damaged:
        return {};
    case Vault::Contents::Kind::newer:
        return failure(u"%1 was written by a newer Ravelo"_s.arg(path));
    case Vault::Contents::Kind::missing:
    case Vault::Contents::Kind::locked:
        break;
    }
    return failure(u"%1 could not be read"_s.arg(path));
}

Result<void> removeFiles(const QStringList& paths, const OwnFile::Permission& mayWrite) {
    for (const QString& path : paths) {
        if (Result<void> done = allowed(mayWrite); !done) {
            return done;
        }
        if (Result<void> done = removeWithTarget(path); !done) {
            return done;
        }
    }
    return {};
}

Result<void> writeKeyFile(const Vault& vault, const KeyFile& file,
                          const OwnFile::Permission& mayWrite) {
    if (Result<void> done = allowed(mayWrite); !done) {
        return done;
    }
    makePrivateFolder(vault.folder());
    return writeFileAtomically(vault.keyPath(), file.encoded());
}

} // namespace

Result<void> convertFiles(const Vault& vault, const OwnFile::Permission& mayWrite) {
    vault.whileNobodyWrites([] {}); // Nothing is still on its way in the former form.
    for (const QString& path : storedFiles(vault.folder())) {
        if (Result<void> done = convertFile(vault, path, mayWrite); !done) {
            return done;
        }
    }
    Result<void> done;
    vault.whileNobodyWrites([&] { done = removeFiles(partialFiles(vault.folder()), mayWrite); });
    return done;
}

Result<void> beginEncryption(Vault& vault, const KeyFile& file, std::shared_ptr<const StoreKey> key,
                             const OwnFile::Permission& mayWrite) {
    if (Result<void> done = writeKeyFile(vault, file, mayWrite); !done) {
        return done;
    }
    vault.open(file, std::move(key));
    return convertFiles(vault, mayWrite);
}

Result<void> finishConversion(Vault& vault, const OwnFile::Permission& mayWrite) {
    const auto file = vault.keyFile();
    return file && file->goal == KeyFile::Goal::plain ? endEncryption(vault, mayWrite)
                                                      : convertFiles(vault, mayWrite);
}

Result<void> endEncryption(Vault& vault, const OwnFile::Permission& mayWrite) {
    auto file = vault.keyFile();
    const auto key = vault.key();
    if (!file || !key) {
        return failure(u"it is locked"_s);
    }
    if (file->goal != KeyFile::Goal::plain) {
        file->setGoal(KeyFile::Goal::plain, *key);
        if (Result<void> done = replaceKeyFile(vault, *file, mayWrite); !done) {
            return done;
        }
    }
    if (Result<void> done = convertFiles(vault, mayWrite); !done) {
        return done;
    }
    if (Result<void> done = removeFiles({vault.keyPath()}, mayWrite); !done) {
        return done;
    }
    vault.leave();
    return syncFolderOf(vault.keyPath());
}

Result<void> replaceKeyFile(Vault& vault, const KeyFile& file,
                            const OwnFile::Permission& mayWrite) {
    const auto key = vault.key();
    if (!key) {
        return failure(u"it is locked"_s);
    }
    if (Result<void> done = writeKeyFile(vault, file, mayWrite); !done) {
        return done;
    }
    vault.open(file, key);
    return {};
}

Result<void> eraseFiles(const QString& folder, const OwnFile::Permission& mayWrite) {
    // The key file first: without it, whatever cannot be removed is unreadable.
    const QStringList paths = filesIn(folder, {u"key"_s, u"key.*"_s}) +
                              filesIn(folder, {u"store.json"_s, u"store.json.*"_s}) +
                              filesIn(folder + u"/clips"_s, {u"*"_s}) +
                              filesIn(folder + u"/waiting"_s, {u"*"_s});
    Result<void> done = allowed(mayWrite);
    if (!done) {
        return done;
    }
    for (const QString& path : paths) {
        if (const Result<void> removed = removeWithTarget(path); !removed && done) {
            done = removed;
        }
    }
    for (const QString& sub : {u"clips"_s, u"waiting"_s}) {
        if (QDir(folder).exists(sub)) {
            QDir(folder).rmdir(sub);
        }
    }
    const Result<void> synced = syncFolderOf(folder + u"/key"_s);
    return done ? synced : done;
}

} // namespace ravelo
