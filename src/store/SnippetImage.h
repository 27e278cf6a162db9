#pragma once

#include "base/Handle.h"
#include "store/Store.h"

namespace ravelo {

/// Writes the image now on the pasteboard to `path`, as PNG, and calls `done` with whether it is
/// there. Starts anew when the pasteboard changes before it is read, and gives up on an owner that
/// takes too long. When the handle is dropped first, `done` is not called and no file stays; it may
/// be dropped at any time, also after the store is gone. Main thread.
[[nodiscard]] Handle saveSnippetImage(const Store::Services& services, const QString& path,
                                      std::function<void(bool)> done);

} // namespace ravelo
