#include "live/support/RunTests.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>

namespace {

/// A test that makes Qt warn has found something, whatever else it asserts.
class WarningsFail : public testing::EmptyTestEventListener {
public:
    static void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            ++warnings();
        }
    }

    void OnTestStart(const testing::TestInfo& /*info*/) override { warnings() = 0; }

    void OnTestEnd(const testing::TestInfo& /*info*/) override {
        EXPECT_EQ(warnings(), 0) << "the test logged warnings, see above";
    }

private:
    static std::atomic<int>& warnings() {
        static std::atomic<int> count = 0;
        return count;
    }
};

} // namespace

int ravelo::live::runTests(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(WarningsFail::handle);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningsFail); // gtest owns it.
    return RUN_ALL_TESTS();
}
