#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>
#include <optional>

namespace ravelo {

/// Drags of other programs, before they reach a window of ours (on X11 the XdndSelection).
/// Main thread. A display server that tells nothing of them keeps the count where it is.
class DragMonitor {
public:
    virtual ~DragMonitor() = default;

    /// Goes up when a drag begins in another program. To be compared for equality only.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// The local files that the newest drag carries; empty where it carries none or its source does
    /// not answer in time. The first call for a drag asks its source and later ones see the answer;
    /// nothing until it is there. Never waits.
    [[nodiscard]] virtual std::optional<QList<QUrl>> files() = 0;

    /// The key under which the newest drag's source hands its files over (see FileTransfer); empty
    /// where it has none. Asked for and answered as `files` is, by itself.
    [[nodiscard]] virtual std::optional<QByteArray> transferKey() = 0;

    /// Called when a drag begins, and when an answer has come.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
