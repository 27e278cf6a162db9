#include "platform/wayland/PrepareApplication.h"
#include "support/RunTests.h"
#include "wayland/Sway.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cstdio>

// The main function of the tests against a real compositor: each program starts its own.

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const ravelo::live::Sway compositor;
    if (compositor.display().empty()) {
        std::fputs("sway does not start\n", stderr);
        return 1;
    }
    qputenv("WAYLAND_DISPLAY", compositor.display().c_str());
    qputenv("SWAYSOCK", compositor.control().c_str());
    qunsetenv("DISPLAY");
    const ravelo::Handle preparation = ravelo::wayland::prepareApplication();
    qunsetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"); // Qt's warning about it counts in a test.
    return ravelo::runTests(argc, argv);
}
