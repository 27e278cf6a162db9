#pragma once

#include "base/Handle.h"

#include <QList>
#include <QUrl>

#include <functional>

namespace ravelo {

/// One dropped item: asked once, it answers once, at once or later, on any thread, with its files;
/// with none where it is something else.
using ItemProvider = std::function<void(std::function<void(const QList<QUrl>&)> answer)>;

/// Asks all `providers` and hands their files, in the order of the answers, to `done` once all have
/// answered; never an empty list, and not where the handle was dropped. Main thread, as is `done`;
/// it may be called from within.
[[nodiscard]] Handle loadToShelf(const QList<ItemProvider>& providers,
                                 std::function<void(const QList<QUrl>&)> done);

} // namespace ravelo
