#pragma once

namespace ravelo {

/// Runs the selected tests within a Qt application. A test that makes Qt warn fails, unless an
/// ExpectedWarning covers it.
[[nodiscard]] int runTests(int argc, char** argv);

} // namespace ravelo
