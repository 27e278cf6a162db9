#pragma once

#include <QStringList>

namespace ravelo {

/// What the types of a clip's other forms are called, each once: "HTML", "Table".
[[nodiscard]] QStringList formNames(const QStringList& types);

} // namespace ravelo
