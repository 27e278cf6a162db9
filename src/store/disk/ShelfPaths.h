#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace ravelo {

// The shelf's files as stored: by path, or by URL if the path is not valid UTF-8. A file always
// comes back as the same URL. The files themselves are not read.

[[nodiscard]] QList<QStringList> shelfPaths(const QList<QList<QUrl>>& stacks);

/// Leaves out what is neither a path nor a URL, and stacks that are empty then.
[[nodiscard]] QList<QList<QUrl>> shelfStacks(const QList<QStringList>& paths);

} // namespace ravelo
