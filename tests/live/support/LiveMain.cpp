#include "support/RunTests.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <cstdio>

// The main function of tests on a private desktop. DESKTOP is an argument of
// tools/desktop/serve.py.

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    QProcess desktop; // Ends with our end of its input, even if this program is killed.
    desktop.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    desktop.start(QStringLiteral("/usr/bin/python3"),
                  {QStringLiteral("-B"), QStringLiteral(SERVE_DESKTOP), QStringLiteral(DESKTOP)});
    if (!desktop.waitForReadyRead(60000)) {
        std::fputs("the desktop does not come up\n", stderr);
        return 1;
    }
    qputenv("DISPLAY", desktop.readLine().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const int result = ravelo::runTests(argc, argv);
    desktop.closeWriteChannel();
    desktop.waitForFinished();
    return result;
}
