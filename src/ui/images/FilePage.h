#pragma once

#include <QImage>
#include <QString>

namespace ravelo {

/// A sheet of paper centred in a square of `size` device pixels, with the extension on a tag in its
/// kind's colour; no tag without an extension.
[[nodiscard]] QImage filePage(const QString& extension, int size);

} // namespace ravelo
