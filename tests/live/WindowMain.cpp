#include "live/TestServer.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>

namespace {

std::atomic<int> warnings = 0;

void countWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    warnings += type == QtWarningMsg || type == QtCriticalMsg ? 1 : 0;
}

/// A test that makes Qt warn has found something, whatever else it asserts.
class WarningsFail : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*info*/) override { warnings = 0; }

    void OnTestEnd(const testing::TestInfo& /*info*/) override {
        EXPECT_EQ(warnings, 0) << "the test logged warnings, see above";
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const ravelo::live::TestServer server;
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(countWarnings);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningsFail); // gtest owns it.
    return RUN_ALL_TESTS();
}
