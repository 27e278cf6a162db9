#include "live/support/Xvfb.h"
#include "support/RunTests.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cstdio>

// The main function of the tests against a real X server: each program brings its own one up.

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const ravelo::live::Xvfb server;
    if (server.display().empty()) {
        std::fputs("Xvfb does not start\n", stderr);
        return 1;
    }
    qputenv("DISPLAY", server.display().c_str());
    qputenv("QT_QPA_PLATFORM", "xcb");
    return ravelo::runTests(argc, argv);
}
