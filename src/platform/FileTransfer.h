#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>

namespace ravelo {

/// Files that a program hands over by a key, because it cannot name them itself: it may be locked
/// up with a view of the disk of its own (the file-transfer portal). Main thread; nothing waits.
class FileTransfer {
public:
    virtual ~FileTransfer() = default;

    /// Fetches what lies under `key`, which goes once. `done` is called once, later, within a few
    /// seconds; with nothing where nobody hands anything out. Never where the handle was dropped.
    [[nodiscard]] virtual Handle retrieve(const QByteArray& key,
                                          std::function<void(const QList<QUrl>&)> done) = 0;
};

} // namespace ravelo
