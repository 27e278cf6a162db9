#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>

namespace ravelo {

/// Files that a sandboxed program hands over by a key, since it sees other paths than we do (the
/// file-transfer portal). Main thread; never blocks.
class FileTransfer {
public:
    virtual ~FileTransfer() = default;

    /// Redeems `key`, which is possible only once. `done` is called once, within a few seconds,
    /// with an empty list on failure; never if the handle was dropped.
    [[nodiscard]] virtual Handle retrieve(const QByteArray& key,
                                          std::function<void(const QList<QUrl>&)> done) = 0;
};

} // namespace ravelo
