#pragma once

#include <QLocale>

namespace ravelo {

/// "512 bytes", "34 kB", "3.3 MB": the same everywhere, in units of 1024 as the limits are.
[[nodiscard]] QString dataSize(qint64 bytes, const QLocale& locale);

} // namespace ravelo
