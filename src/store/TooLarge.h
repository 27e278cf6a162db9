#pragma once

#include <QtGlobal>

namespace ravelo {

/// A copy of which nothing is kept because it is too large.
struct TooLarge {
    enum class Kind { text, image, pixels };

    Kind kind;
    qint64 amount; ///< Of bytes, or of an image's pixels; as far as known: it may be more.
};

} // namespace ravelo
