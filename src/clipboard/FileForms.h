#pragma once

#include "platform/Pasteboard.h"

#include <QUrl>

namespace ravelo {

/// One file as a pasteboard object that file managers paste as a copy: a list of one address
/// (RFC 2483, RFC 8089), the same as GNOME's programs and those after them hand it on, and its path
/// for whoever takes text only. Empty for what is no file. The file itself is not looked at.
[[nodiscard]] QList<PasteboardEntry> fileForms(const QUrl& url);

} // namespace ravelo
