#pragma once

#include "store/Records.h"

namespace ravelo {

/// The snippets of a new board, with fresh ids at each call.
[[nodiscard]] QList<Snippet> seedSnippets();

/// Links to the pages of the website; added once per installation.
[[nodiscard]] QList<Snippet> linkSnippets();

} // namespace ravelo
