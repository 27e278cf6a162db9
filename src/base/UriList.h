#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

namespace ravelo {

/// The local files in a text/uri-list (RFC 2483, RFC 8089), in its order, as canonical URLs (see
/// `fileUrl`). `hostName` is this machine. Skips comments, other schemes, other hosts and what is
/// malformed. Characters that should have been percent-encoded are accepted as they are. Accepts
/// any bytes; any thread.
[[nodiscard]] QList<QUrl> localFiles(const QByteArray& uriList, const QByteArray& hostName);

} // namespace ravelo
