#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace ravelo {

// The shelf's files as the store file has them: by path, or by address if text cannot hold the
// bytes of the path. Whatever its name, a file comes back as the same URL. The files are not looked
// at.

[[nodiscard]] QList<QStringList> shelfPaths(const QList<QList<QUrl>>& stacks);

/// What is neither a path nor an address is left out, and so are stacks of nothing else.
[[nodiscard]] QList<QList<QUrl>> shelfStacks(const QList<QStringList>& paths);

} // namespace ravelo
