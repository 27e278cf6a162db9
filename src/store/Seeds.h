#pragma once

#include "store/Records.h"

namespace ravelo {

/// What a new snippet board is filled with; every call gives fresh ids.
[[nodiscard]] QList<Snippet> seedSnippets();

/// The pages of the business's website, added once in the life of an installation.
[[nodiscard]] QList<Snippet> linkSnippets();

} // namespace ravelo
