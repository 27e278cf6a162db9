#pragma once

#include "base/OwnFile.h"
#include "store/Records.h"

#include <QList>
#include <QStringList>
#include <QUrl>

namespace ravelo {

class Vault;

/// What the store saves.
struct StoreContents {
    StoreData data = {}; ///< All but the shelf.
    QList<QList<QUrl>> shelf = {};
};

/// A store as it was read from its folder.
struct ReadStore {
    enum class Kind { none, read, unreadable, newer };

    Kind kind = Kind::none;
    StoreContents store = {};
    QList<StoreContents> waiting = {}; ///< What came while it was locked.
    QStringList waitingFiles = {};     ///< Their files, to be removed once all is saved.
};

/// Reads the store file at `path`, and beside it the folder "waiting". Blocks; any thread.
[[nodiscard]] ReadStore readStore(const Vault& vault, const QString& path);

/// Where what comes while the store is locked waits; a new name at each call.
[[nodiscard]] QString newWaitingFile(const Vault& vault);

} // namespace ravelo
