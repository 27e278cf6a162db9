#pragma once

#include "store/Records.h"

#include <QString>
#include <QStringList>

namespace ravelo {

// What a row says about a secret, without its text.

/// Two or three runs of letters: what may be seen of it, and dots.
[[nodiscard]] QStringList secretRuns(const ClipItem& clip);

/// "GitHub token", or what is not clear from the title: "35 lines".
[[nodiscard]] QString secretKind(const ClipItem& clip);

/// For screen readers: "Secret, GitHub token, ends in 4 f 2 a".
[[nodiscard]] QString secretSpoken(const ClipItem& clip);

} // namespace ravelo
