#include "monitor/UsageReaders.h"
#include "monitor/UsageFile.h"

#include "base/Files.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double november15 = 1763233200 - referenceInstant; // 2025-11-15T19:00:00Z

Date at(double fraction) {
    return {november15 + fraction};
}

TEST(UsageAnswer, hasTimesWithAFractionOnly) {
    struct Case {
        const char* resets;
        std::optional<Date> date;
    };

    const Case cases[] = {
        {R"("2025-11-15T19:00:00.123456+00:00")", at(0.123456)},
        {R"("2025-11-15T19:00:00.5Z")", at(0.5)},
        {R"("2025-11-15T15:30:00.000-03:30")", at(0)},
        {R"("2025-11-15T19:00:00+00:00")", {}},
        {R"("2025-11-15T19:00:00Z")", {}},
        {R"("2025-11-15T19:00:00.Z")", {}},
        {R"("2025-11-15T19:00:00.5")", {}},
        {R"("2025-11-15 19:00:00.5Z")", {}},
        {R"("2025-02-30T19:00:00.5Z")", {}},
        {R"("2025-11-15T24:00:00.5Z")", {}},
        {R"("2025-11-15T19:00:00.5Z\n")", {}},
        {"1763233200", {}},
        {"null", {}},
    };
    for (const Case& c : cases) {
        const auto windows = readUsageAnswer(R"({"five_hour":{"utilization":41.5,"resets_at":)" +
                                             QByteArray(c.resets) + "}}");
        ASSERT_TRUE(windows && windows->session) << c.resets;
        EXPECT_EQ(windows->session->pct, 41.5);
        ASSERT_EQ(windows->session->resets.has_value(), c.date.has_value()) << c.resets;
        if (c.date) {
            EXPECT_NEAR(windows->session->resets->sinceReference, c.date->sinceReference, 1e-6);
        }
    }
}

TEST(UsageReaders, readEachWindowThatHasAPercentage) {
    using Windows = std::optional<PlanWindows>;

    struct Case {
        const char* name;
        Windows (*read)(QByteArrayView);
        QByteArray json;
        Windows windows;
    };

    const Case cases[] = {
        {"answerWithBoth", readUsageAnswer,
         R"({"five_hour":{"utilization":7},"seven_day":{"utilization":130.5},"x":1})",
         PlanWindows{UsageWindow{7, {}}, UsageWindow{130.5, {}}}},
        {"answerWithOne", readUsageAnswer,
         R"({"seven_day":{"utilization":0,"resets_at":"2025-11-15T19:00:00.0Z"}})",
         PlanWindows{{}, UsageWindow{0, at(0)}}},
        {"answerWithNeither", readUsageAnswer,
         R"({"five_hour":{"utilization":"7"},"seven_day":[{"utilization":7}]})", PlanWindows{}},
        {"answerThatIsNoObject", readUsageAnswer, "[]", {}},
        {"answerThatIsNoJson", readUsageAnswer, "<html>", {}},
        {"fileWithBoth", readUsageFile,
         R"({"model":{},"rate_limits":{"five_hour":{"used_percentage":23.5,)"
         R"("resets_at":1763233200},"seven_day":{"used_percentage":1,"resets_at":"x"}}})",
         PlanWindows{UsageWindow{23.5, at(0)}, UsageWindow{1, {}}}},
        {"fileWithNeither", readUsageFile, R"({"rate_limits":{"seven_day":7}})", PlanWindows{}},
        {"fileWithoutLimits",
         readUsageFile,
         R"({"rate_limits":[],"five_hour":{"used_percentage":1}})",
         {}},
        {"fileThatIsNoJson", readUsageFile, R"({"rate_limits":{)", {}},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(c.read(c.json) == c.windows) << c.name;
    }
}

TEST(Credentials, areReadIfTheUserIsLoggedIn) {
    const auto read = [](const QByteArray& account) {
        return readCredentials(R"({"claudeAiOauth":)" + account + '}');
    };
    const auto full = read(R"({"accessToken":"a-B_9.~","expiresAt":1763233200500})");
    ASSERT_TRUE(full);
    EXPECT_EQ(full->accessToken.bytes(), "a-B_9.~");
    EXPECT_EQ(full->expiresAt, 1763233200.5);
    EXPECT_EQ(read(R"({"accessToken":"a","expiresAt":"soon"})")->expiresAt, std::nullopt);
    for (const char* account : {"{}", R"({"accessToken":""})", R"({"accessToken":7})", R"("a")",
                                R"({"accessToken":"a\r\nX-Other: b"})", R"({"accessToken":"a b"})",
                                R"({"accessToken":"ä"})"}) {
        EXPECT_FALSE(read(account)) << account;
    }
    EXPECT_FALSE(readCredentials(R"({"accessToken":"a"})"));
    EXPECT_FALSE(readCredentials(""));
}

TEST(UsageFile, keepsOnlyTheLimitsOfTheStatusLine) {
    const QTemporaryDir folder;
    const QByteArray home = QFile::encodeName(folder.filePath(u"hom\xE9"_s));
    const QString file = QFile::decodeName(home + "/.ravelo/usage.json");
    EXPECT_EQ(loadUsage(home), std::nullopt);

    const QByteArray line = R"({"cwd":"/secret","rate_limits":{"plan":"secret","five_hour":)"
                            R"({"used_percentage":23.5,"resets_at":1763233200,"who":"secret"},)"
                            R"("seven_day":{"used_percentage":41}}})";
    ASSERT_TRUE(storeUsage(home, line));
    EXPECT_TRUE(loadUsage(home) == (PlanWindows{UsageWindow{23.5, at(0)}, UsageWindow{41, {}}}));
    EXPECT_FALSE(readFile(file)->contains("secret"));
    EXPECT_EQ(QFileInfo(file).permissions() & 0x77, 0) << "others can read it";

    for (const QByteArray& other : {QByteArray(), QByteArray("{}"), line.chopped(1)}) {
        EXPECT_FALSE(storeUsage(home, other)) << other.toStdString();
        EXPECT_TRUE(loadUsage(home)) << "the file of before is lost";
    }
    ASSERT_TRUE(writeFileAtomically(file, line + QByteArray(1 << 20, ' ')));
    EXPECT_EQ(loadUsage(home), std::nullopt) << "larger than any usage file";
}

TEST(RetryAfter, isANumberOfSecondsOrADate) {
    const std::pair<const char*, double> cases[] = {
        {"120", 120},
        {" 0 ", 0},
        {"99999999999999999999", 86400},
        {"Sat, 15 Nov 2025 19:01:30 GMT", 90},
        {"Sat, 15 Nov 2025 18:00:00 GMT", 0},
        {"Sun, 15 Nov 2026 19:00:00 GMT", 86400},
        {"", 0},
        {"-5", 0},
        {"1.5", 0},
        {"soon", 0},
    };
    for (const auto& [header, seconds] : cases) {
        EXPECT_EQ(readRetryAfter(header, at(0)), Seconds(seconds)) << header;
    }
}

} // namespace

} // namespace ravelo
