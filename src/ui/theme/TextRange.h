#pragma once

#include <QtGlobal>

namespace ravelo {

/// Part of a text, in UTF-16 code units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

} // namespace ravelo
