#pragma once

#include "base/Handle.h"

#include <QList>
#include <QUrl>

#include <functional>

namespace ravelo {

/// One dropped item. Answers a question once, now or later and on any thread, with its files; with
/// none if it is something else.
using ItemProvider = std::function<void(std::function<void(const QList<QUrl>&)> answer)>;

/// Asks all `providers` and calls `done` with their files, in the order of the answers, once all
/// have answered; not if there are no files or the handle was dropped. Main thread, also `done`,
/// which may be called from within.
[[nodiscard]] Handle loadToShelf(const QList<ItemProvider>& providers,
                                 std::function<void(const QList<QUrl>&)> done);

} // namespace ravelo
