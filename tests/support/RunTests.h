#pragma once

namespace ravelo {

/// Runs the tests that InitGoogleTest has chosen, within a Qt application. A test that makes Qt
/// warn fails, whatever else it asserts, unless an ExpectedWarning takes the warning.
[[nodiscard]] int runTests(int argc, char** argv);

} // namespace ravelo
