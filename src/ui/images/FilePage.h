#pragma once

#include <QImage>
#include <QString>

namespace ravelo {

/// A sheet of paper in the middle of a square of `size` device pixels, as high as it, with the
/// extension on a tag in the colour of its kind; without a tag where there is no extension.
[[nodiscard]] QImage filePage(const QString& extension, int size);

} // namespace ravelo
