#include "monitor/TranscriptParser.h"
#include "monitor/LiveContext.h"

#include <gtest/gtest.h>

#include <limits>

namespace ravelo {

using namespace Qt::StringLiterals;

void PrintTo(const TurnUsage& usage, std::ostream* out) {
    *out << usage.model.toStdString() << ": " << usage.tokens;
}

namespace {

/// A turn of an assistant with this usage.
QByteArray turn(const QByteArray& model, const QByteArray& usage, const QByteArray& more = {}) {
    return R"({"type":"assistant",)" + more + R"("message":{"model":")" + model + R"(","usage":)" +
           usage + "}}\n";
}

QByteArray turn(qint64 input, const QByteArray& more = {}) {
    return turn("claude-opus-4-6", R"({"input_tokens":)" + QByteArray::number(input) + '}', more);
}

const QByteArray tool = R"({"type":"user","message":{"content":"said \"usage\" of nothing"}})"
                        "\n";

TEST(LastUsage, isThatOfTheLastValidTurn) {
    struct Case {
        const char* name;
        QByteArray transcript;
        std::optional<qint64> tokens;
        QString model = u"claude-opus-4-6"_s;
    };

    const Case cases[] = {
        {"nothing", "", {}},
        {"emptyLines", "\n\n" + turn(5) + "\n\n", 5},
        {"laterOne", turn(5) + turn(6), 6},
        {"noLineEnd", turn(5) + turn(6).chopped(1), 6},
        {"returns", "\r\n" + turn(6).chopped(1) + "\r\n", 6},
        {"behindItTools", turn(5) + tool + tool, 5},
        {"behindItGarbage",
         turn(5) + R"({"usage": [})"
                   "\n[\"usage\"]\n",
         5},
        {"behindItASidechain", turn(5) + turn(6, R"("isSidechain":true,)"), 5},
        {"noSidechain", turn(5) + turn(6, R"("isSidechain":false,)"), 6},
        {"aSidechainIsTrueAndNotOne", turn(5) + turn(6, R"("isSidechain":1,)"), 6},
        {"behindItAPlaceholder", turn(5) + turn("<synthetic>", R"({"input_tokens":6})"), 5},
        {"behindItNoTokens", turn(5) + turn(0), 5},
        {"behindItFewerThanNone", turn(5) + turn(-7), 5},
        {"noModel", R"({"message":{"usage":{"input_tokens":6}}})", 6, u""_s},
        {"aModelThatIsNoText", R"({"message":{"model":4,"usage":{"input_tokens":6}}})", 6, u""_s},
        {"noMessage", R"({"usage":{"input_tokens":6}})", {}},
        {"usageThatIsNoObject", turn(5) + turn("m", "7"), 5},
        {"threeSorts",
         turn("claude-opus-4-6", R"({"input_tokens":1,"cache_read_input_tokens":20,)"
                                 R"("cache_creation_input_tokens":300,"output_tokens":4000})"),
         321},
        {"noNumbers",
         turn("claude-opus-4-6", R"({"input_tokens":"1","cache_read_input_tokens":true,)"
                                 R"("cache_creation_input_tokens":2.9})"),
         2},
        {"theLargest",
         turn("claude-opus-4-6",
              R"({"input_tokens":9223372036854775807,"cache_read_input_tokens":1e19})"),
         std::numeric_limits<qint64>::max()},
        {"behindItASumBeyond64Bits",
         turn(5) + turn("m", R"({"input_tokens":9223372036854775807,)"
                             R"("cache_read_input_tokens":1})"),
         5},
        {"behindItASumBelow64Bits",
         turn(5) + turn("m", R"({"input_tokens":-9223372036854775808,)"
                             R"("cache_read_input_tokens":-1})"),
         5},
        {"cutAtTheBegin", turn(5).mid(9) + turn(6), 6},
        {"cutAtTheBeginAlone", turn(5).mid(9), {}},
        {"cutWithinACharacter", QByteArray("é\n").mid(1) + turn(6), {}},
        {"otherScripts", QByteArray("é中😀\n") + turn(6), 6},
    };
    for (const Case& c : cases) {
        const std::optional<TurnUsage> usage = lastUsage(c.transcript);
        EXPECT_EQ(usage, c.tokens ? std::optional(TurnUsage{c.model, *c.tokens}) : std::nullopt)
            << c.name;
    }
}

TEST(CompactWindow, isReadFromTheSettings) {
    struct Case {
        const char* value;
        std::optional<qint64> limit;
    };

    const Case cases[] = {{R"("400000")", 400000},
                          {"400000", 400000},
                          {R"("+5")", 5},
                          {R"("-5")", -5},
                          {"0", 0},
                          {"-1.9", -1},
                          {"1e30", {}},
                          {R"("9223372036854775808")", {}},
                          {R"("abc")", {}},
                          {R"("")", {}},
                          {R"("+")", {}},
                          {R"("+-5")", {}},
                          {R"(" 5")", {}},
                          {R"("5 ")", {}},
                          {R"("0x5")", {}},
                          {R"("5.0")", {}},
                          {"true", {}},
                          {"null", {}},
                          {"{}", {}}};
    for (const Case& c : cases) {
        const QByteArray settings =
            R"({"env":{"CLAUDE_CODE_AUTO_COMPACT_WINDOW":)" + QByteArray(c.value) + "}}";
        EXPECT_EQ(compactWindow(settings), c.limit) << c.value;
    }
    for (const char* settings : {"", "[]", "{", "{}", R"({"env":[]})", R"({"env":{}})",
                                 R"({"CLAUDE_CODE_AUTO_COMPACT_WINDOW":5})"}) {
        EXPECT_EQ(compactWindow(settings), std::nullopt) << settings;
    }
}

TEST(ModelName, isPretty) {
    const std::pair<QString, QString> cases[] = {
        {u"claude-opus-4-6[1m]"_s, u"Opus 4.6"_s},
        {u"claude-haiku-4-5-20251001"_s, u"Haiku 4.5"_s},
        {u"claude-sonnet-4"_s, u"Sonnet 4"_s},
        {u"claude"_s, u"claude"_s},
        {u"claude-20251001"_s, u"claude-20251001"_s},
        {u"[1m]"_s, u"[1m]"_s},
        {u""_s, u""_s},
        {u"claude-claude-1234567"_s, u"Claude 1234567"_s},
        {u"3-claude-x"_s, u"3 claude.x"_s},
        {u"opus--12345678901234567890-x2025100"_s, u"Opus 12345678901234567890.x2025100"_s},
        {u"éclair-[1m]1"_s, u"Éclair 1"_s},
        {u"us.anthropic.claude-sonnet-4-5-20250929-v1:0"_s, u"Sonnet 4.5"_s},
        {u"anthropic.claude-opus-4-6-v1[1m]"_s, u"Opus 4.6"_s},
        {u"arn:aws:bedrock:us-east-1:1:inference-profile/eu.anthropic.claude-opus-4-20250514-v1:0"_s,
         u"Opus 4"_s},
        {u"arn:aws:bedrock:us-east-1:1:application-inference-profile/x"_s,
         u"Arn:aws:bedrock:us east.1:1:application.inference.profile/x"_s},
    };
    for (const auto& [raw, pretty] : cases) {
        EXPECT_EQ(prettyModel(raw), pretty) << qPrintable(raw);
    }
}

TEST(TokenCount, isShort) {
    const std::pair<qint64, QString> cases[] = {
        {0, u"0k"_s},
        {499, u"0k"_s},
        {500, u"1k"_s},
        {1499, u"1k"_s},
        {-500, u"-1k"_s},
        {999499, u"999k"_s},
        {999500, u"1000k"_s},
        {1000000, u"1.0M"_s},
        {1234567, u"1.2M"_s},
        {1250000, u"1.2M"_s},
        {1750000, u"1.8M"_s},
        {2960000, u"3.0M"_s},
        {std::numeric_limits<qint64>::max(), u"9223372036854.8M"_s},
    };
    for (const auto& [tokens, text] : cases) {
        EXPECT_EQ(LiveContext::shortCount(tokens), text) << tokens;
    }
}

} // namespace

} // namespace ravelo
