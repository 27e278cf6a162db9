#pragma once

#include <QLatin1StringView>
#include <QString>

namespace ravelo {

/// The path of one of our helper programs: beside the running program, as in a build tree, or in
/// ../libexec/ravelo, as installed. It may not exist. Needs the application object.
[[nodiscard]] QString helperProgram(QLatin1StringView name);

} // namespace ravelo
