#include "ui/lists/DataSize.h"

#include <cstdlib>

namespace ravelo {

QString dataSize(qint64 bytes, const QLocale& locale) {
    qint64 unit = 1;
    while (std::abs(bytes) / unit >= 1024) {
        unit *= 1024;
    }
    const int decimals = unit > 1 && std::abs(bytes) / unit < 10 ? 1 : 0;
    return locale.formattedDataSize(bytes, decimals, QLocale::DataSizeTraditionalFormat);
}

} // namespace ravelo
