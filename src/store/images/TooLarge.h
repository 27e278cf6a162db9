#pragma once

#include <QtGlobal>

namespace ravelo {

/// A copy that is too large to keep anything of it.
struct TooLarge {
    enum class Kind { text, image, pixels };

    Kind kind;
    qint64 amount; ///< Bytes, or pixels of an image; a lower bound.
};

} // namespace ravelo
