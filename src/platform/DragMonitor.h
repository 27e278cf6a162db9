#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace ravelo {

/// What the source of one drag has answered so far.
struct DragAnswers {
    /// The local files that it carries; empty if it carries none or does not answer in time.
    std::optional<QList<QUrl>> files;

    /// The key under which it hands its files over (see FileTransfer); empty if it has none.
    std::optional<QByteArray> transferKey;
};

/// Drags of other programs, before they reach a window of ours (on X11 the XdndSelection).
/// Main thread. A display server that tells nothing of them keeps the count where it is.
class DragMonitor {
public:
    virtual ~DragMonitor() = default;

    /// Goes up when a drag begins in another program. To be compared for equality only.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// What the newest drag's source has answered. The first call for a drag asks its source and
    /// later ones see the answer; nothing until it is there. Never waits.
    [[nodiscard]] virtual std::optional<QList<QUrl>> files() = 0;

    /// Asked for and answered as `files` is, by itself.
    [[nodiscard]] virtual std::optional<QByteArray> transferKey() = 0;

    /// The answers of the newest drag. They still come in after another drag has begun: what was
    /// asked is always answered.
    [[nodiscard]] virtual std::shared_ptr<const DragAnswers> answers() = 0;

    /// Called when a drag begins, and when an answer has come.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
