#include "support/RunTests.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <cstdio>
#include <mutex>

namespace ravelo {

namespace {

std::mutex mutex;                         ///< Any thread may log.
QStringList& warnings = *new QStringList; ///< Logged to until the very end.
QStringList expected;

class WarningsFail : public testing::EmptyTestEventListener {
public:
    static void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            const std::lock_guard lock(mutex);
            warnings.append(text);
        }
    }

    void OnTestStart(const testing::TestInfo& /*info*/) override {
        const std::lock_guard lock(mutex);
        warnings.clear();
        expected.clear();
    }

    void OnTestEnd(const testing::TestInfo& /*info*/) override {
        const std::lock_guard lock(mutex);
        EXPECT_EQ(warnings, expected) << "the warnings of the test";
    }
};

} // namespace

void expectWarning(const QString& text) {
    expected.append(text);
}

int runTests(int argc, char** argv) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // The user's is not ours to use.
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(WarningsFail::handle);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningsFail); // gtest owns it.
    return RUN_ALL_TESTS();
}

} // namespace ravelo
