#pragma once

namespace ravelo::live {

/// Runs the tests of the program with a Qt application on $DISPLAY; what main() returns.
[[nodiscard]] int runTests(int argc, char** argv);

} // namespace ravelo::live
