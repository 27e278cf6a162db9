#pragma once

#include "base/Handle.h"
#include "platform/DragOffer.h"

#include <QtGlobal>

#include <functional>
#include <memory>

namespace ravelo {

/// Drags of other programs, before they reach a window of ours (on X11 the XdndSelection). If the
/// display server does not reveal them, the count never changes. Main thread.
class DragMonitor {
public:
    virtual ~DragMonitor() = default;

    /// Goes up when a drag begins in another program. To be compared for equality only.
    [[nodiscard]] virtual qint64 changeCount() const = 0;

    /// What the newest drag offers; null before the first one. The same object for one drag.
    [[nodiscard]] virtual std::shared_ptr<DragOffer> newest() = 0;

    /// Called when a drag begins, and when a source has answered.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
