#pragma once

#include <QByteArray>

namespace ravelo {

/// Tells this installation from those on other machines; empty if it has none. Any thread.
[[nodiscard]] QByteArray machineId();

} // namespace ravelo
