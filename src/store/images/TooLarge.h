#pragma once

#include <QtGlobal>

namespace ravelo {

/// A copy that is too large to keep anything of it.
struct TooLarge {
    enum class Kind {
        text,
        image,
        pixels,
        deepPixels ///< Of 16 bits for each colour.
    };

    Kind kind;
    qint64 amount; ///< Bytes, or pixels of an image; a lower bound.
};

} // namespace ravelo
