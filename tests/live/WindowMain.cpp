#include "live/support/Desktop.h"
#include "support/RunTests.h"

#include <gtest/gtest.h>

#include <cstdio>

// The main function of the tests that want a whole desktop.

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const ravelo::live::Desktop desktop;
    if (!desktop.isUp()) {
        std::fputs("the X server, the window manager or a monitor is missing\n", stderr);
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    return ravelo::runTests(argc, argv);
}
