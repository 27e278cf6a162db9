#pragma once

#include "base/Handle.h"
#include "store/StoreServices.h"

#include <QString>

#include <functional>

namespace ravelo {

/// Writes the image now on the pasteboard to `path` as PNG, and calls `done` with whether it was
/// written. Starts again if the pasteboard changes before it is read, and gives up on a slow owner.
/// Dropping the handle earlier means that `done` is not called and no file stays; it may be dropped
/// after the store is gone. Main thread.
[[nodiscard]] Handle saveSnippetImage(const StoreServices& services, const QString& path,
                                      std::function<void(bool)> done);

} // namespace ravelo
