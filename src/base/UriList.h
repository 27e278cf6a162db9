#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

namespace ravelo {

/// The files of this machine in a list of addresses (text/uri-list, RFC 2483; "file" addresses by
/// RFC 8089), in its order, each by its one URL (see `fileUrl`). A file of the host `hostName` is
/// one of ours. All else is passed over: comments, other schemes, other hosts, what makes no sense.
/// What should have been percent-encoded and is not is taken as it stands. Any bytes will do; any
/// thread.
[[nodiscard]] QList<QUrl> localFiles(const QByteArray& uriList, const QByteArray& hostName);

} // namespace ravelo
