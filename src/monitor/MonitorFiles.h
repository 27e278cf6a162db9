#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <optional>

// The small files of the monitors. All block; any thread.

namespace ravelo {

/// In "~/.ravelo", which is watched: other programs write there.
[[nodiscard]] QByteArray monitorFile(const QByteArray& home, const QByteArray& name);

/// In "ravelo" below XDG_CACHE_HOME, else "~/.cache", for what we write ourselves.
[[nodiscard]] QByteArray monitorCache(const QByteArray& home, const QByteArray& name);

/// Removes what is in the cache, and its folder if nothing else is there.
[[nodiscard]] Result<void> eraseMonitorCache(const QByteArray& home);

/// Nothing if it is missing or larger than such a file can be.
[[nodiscard]] std::optional<QByteArray> readMonitorFile(const QByteArray& path);

/// Atomically; readable by the user only. Creates a missing folder.
[[nodiscard]] Result<void> writeMonitorFile(const QByteArray& path, const QByteArray& bytes);

} // namespace ravelo
