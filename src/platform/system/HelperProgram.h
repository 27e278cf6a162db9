#pragma once

#include <QLatin1StringView>
#include <QString>

namespace ravelo {

/// Where a small program of ours is: beside the running one, as in a build tree, or in
/// ../libexec/ravelo from there, as it is installed. It need not be there. Needs the application
/// object.
[[nodiscard]] QString helperProgram(QLatin1StringView name);

} // namespace ravelo
