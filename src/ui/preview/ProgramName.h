#pragma once

#include <QString>

namespace ravelo {

/// A window's class or an app id as a name to show: "org.gnome.gedit" is "Gedit". Not longer than
/// fits into a row.
[[nodiscard]] QString programName(const QString& kept);

} // namespace ravelo
