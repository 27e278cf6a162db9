#include "support/RunTests.h"

#include "support/ExpectedWarning.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>

namespace ravelo {

namespace {

class WarningsFail : public testing::EmptyTestEventListener {
public:
    static void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        const bool bad = type == QtWarningMsg || type == QtCriticalMsg;
        if (bad && !ExpectedWarning::takes(text)) {
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

int runTests(int argc, char** argv) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // The user's is not ours to use.
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(WarningsFail::handle);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningsFail); // gtest owns it.
    return RUN_ALL_TESTS();
}

} // namespace ravelo
