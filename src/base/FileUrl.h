#pragma once

#include <QByteArray>
#include <QUrl>

namespace ravelo {

// A path is a sequence of any bytes but NUL, not always valid text. Converting it to a QString may
// change it; a percent-encoded URL does not.

/// The canonical URL of an absolute path: URLs are equal exactly if the paths are.
[[nodiscard]] QUrl fileUrl(const QByteArray& path);

/// The inverse of `fileUrl`: the bytes of the path, or empty if it is not a local file.
[[nodiscard]] QByteArray filePath(const QUrl& url);

/// The form for other programs (RFC 8089): "file:///", with all but unreserved characters
/// percent-encoded, as GLib writes it. Empty if it is not a local file.
[[nodiscard]] QByteArray fileAddress(const QUrl& url);

} // namespace ravelo
