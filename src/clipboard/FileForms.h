#pragma once

#include "platform/Pasteboard.h"

#include <QUrl>

namespace ravelo {

/// One file in forms that file managers paste as a copy: a list of one URL (RFC 2483, RFC 8089),
/// the same as GNOME's file managers exchange it, and its path as text. Empty if it is not a file.
/// The file itself is not read.
[[nodiscard]] QList<PasteboardEntry> fileForms(const QUrl& url);

} // namespace ravelo
