#pragma once

#include <QString>

namespace ravelo {

/// The running test logs this warning (the whole line), once.
void expectWarning(const QString& text);

/// Runs the selected tests within a Qt application. A test that logs another warning fails.
[[nodiscard]] int runTests(int argc, char** argv);

} // namespace ravelo
