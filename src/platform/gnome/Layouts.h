#pragma once

#include <QStringView>

namespace ravelo::gnome {

/// Whether a layout with this name of XKB's, such as "us" or "rs+latin", has a V, as far as we know
/// it. Pure.
[[nodiscard]] bool hasLatinLetters(QStringView layout);

} // namespace ravelo::gnome
