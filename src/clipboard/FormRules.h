#pragma once

#include "clipboard/CaptureRules.h"

namespace ravelo {

/// Whether the other forms of a text that may be kept hold nothing that may not: no secret in an
/// attribute or address, say, and nothing that is to be ignored. Looks at formatted text and
/// addresses, not into office documents. Any thread; can take long.
[[nodiscard]] bool mayKeepForms(const CaptureRules& rules, const QString& text,
                                const QList<PasteboardEntry>& forms);

} // namespace ravelo
