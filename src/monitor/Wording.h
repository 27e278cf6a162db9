#pragma once

#include <QLocale>
#include <QString>

namespace ravelo {

/// Scripts read what commands print, so that is always English; the interface is translated.
enum class Wording { english, translated };

/// `source` in a translation context. Mark it by QT_TRANSLATE_NOOP.
[[nodiscard]] QString worded(Wording wording, const char* context, const char* source);

/// For names of days and months within such texts.
[[nodiscard]] QLocale localeOf(Wording wording);

} // namespace ravelo
