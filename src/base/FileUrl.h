#pragma once

#include <QByteArray>
#include <QUrl>

namespace ravelo {

// A path is any row of bytes but NUL, in whatever encoding, or in none. As a QString it may no
// longer name its file; a URL keeps it, percent-encoded where it must be.

/// The one URL that stands for an absolute path: equal paths have equal URLs, and no others do.
[[nodiscard]] QUrl fileUrl(const QByteArray& path);

/// The bytes of its path; empty for what is no local file. The opposite of `fileUrl`.
[[nodiscard]] QByteArray filePath(const QUrl& url);

/// In the form in which addresses are handed to other programs (RFC 8089): "file:///" and all but
/// unreserved characters percent-encoded, as GLib's programs write them; empty likewise.
[[nodiscard]] QByteArray fileAddress(const QUrl& url);

} // namespace ravelo
