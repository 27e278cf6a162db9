#include "monitor/HandedOver.h"
#include "monitor/BarText.h"

#include "base/Files.h"
#include "monitor/MonitorFiles.h"
#include "monitor/PaceFile.h"
#include "monitor/TranscriptParser.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray handed =
    R"({"session_id":"3f41","transcript_path":"/secret/x.jsonl","cwd":"/secret/larkspur/sub",)"
    R"("model":{"id":"claude-opus-4-6","display_name":"Opus 4.6"},)"
    R"("workspace":{"current_dir":"/secret/larkspur/sub","project_dir":"/secret/larkspur"},)"
    R"("cost":{"total_cost_usd":0.1249,"total_duration_ms":45000},)"
    R"("context_window":{"context_window_size":200000,"used_percentage":8,"current_usage":)"
    R"({"input_tokens":8500,"output_tokens":1200,"cache_creation_input_tokens":5000,)"
    R"("cache_read_input_tokens":2000}}})";

TEST(HandedOver, isKeptWithoutPaths) {
    const QTemporaryDir folder;
    const QByteArray home = QFile::encodeName(folder.path());
    const HandedOver expected{u"Opus 4.6"_s, u"3f41"_s, u"larkspur"_s, 200000,
                              15500,         0.1249,    Date{1000}};
    const auto read = readHandedOver(handed, Date{1000});
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == expected);
    EXPECT_FALSE(loadHandedOver(home));
    ASSERT_TRUE(storeHandedOver(home, *read));
    EXPECT_TRUE(loadHandedOver(home) == expected);
    const QString file = QFile::decodeName(handedOverFile(home));
    EXPECT_FALSE(readFile(file)->contains("secret"));
    EXPECT_EQ(QFileInfo(file).permissions() & 0x77, 0) << "others can read it";
    EXPECT_EQ(handedOverText(*read, {UsageWindow{41.5, {}}, {}}).toStdString(),
              "5h 42% · week — · Opus 4.6 · 16k / 200k · $0.12\n");
}

TEST(HandedOver, isErasedWithTheRestOfTheCache) {
    const QTemporaryDir folder;
    const QByteArray home = QFile::encodeName(folder.path());
    const auto expectErased = [&](const QString& cache) {
        ASSERT_TRUE(storeHandedOver(home, {}));
        ASSERT_TRUE(storeCourse(home, {}));
        ASSERT_TRUE(QFile::exists(folder.filePath(cache + u"/ravelo/pace.json"_s)));
        QFile partial(folder.filePath(cache + u"/ravelo/session.json.Ab12Cd"_s));
        ASSERT_TRUE(partial.open(QFile::WriteOnly)) << "as left by a kill";
        EXPECT_TRUE(eraseMonitorCache(home));
        EXPECT_TRUE(QFileInfo(folder.filePath(cache)).isDir());
        EXPECT_FALSE(QFile::exists(folder.filePath(cache + u"/ravelo"_s)));
        EXPECT_TRUE(eraseMonitorCache(home)) << "nothing is there";
    };
    expectErased(u".cache"_s);
    qputenv("XDG_CACHE_HOME", home + "/chosen");
    expectErased(u"chosen"_s);
    qunsetenv("XDG_CACHE_HOME");
}

TEST(HandedOver, mayBeIncomplete) {
    struct Case {
        QByteArray json;
        std::optional<HandedOver> handed;
    };

    const Case cases[] = {
        {"", {}},
        {"[]", {}},
        {R"({"rate_limits":{}})", {}},
        {R"({"model":"Opus"})", {}},
        {R"({"model":{"display_name":"A\nB"}})", HandedOver{u"A B"_s, {}, {}, {}, {}, {}, {}}},
        {R"({"context_window":{"context_window_size":200000,"used_percentage":8,)"
         R"("current_usage":null}})",
         HandedOver{{}, {}, {}, 200000, 16000, {}, {}}},
        {R"({"context_window":{"context_window_size":200000,"used_percentage":null}})",
         HandedOver{{}, {}, {}, 200000, {}, {}, {}}},
        {R"({"context_window":{"context_window_size":1e300,"used_percentage":-8}})", {}},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(readHandedOver(c.json, Date{}) == c.handed) << c.json.constData();
    }
}

TEST(Project, isNamedByItsFolder) {
    struct Case {
        const char* folder;
        const char* stored;
        const char* name;
    };

    const Case cases[] = {
        {"/home/ann/work/larkspur-site", "-home-ann-work-larkspur-site", "larkspur-site"},
        {"/home/ann/work/larkspur-site/src/x", "-home-ann-work-larkspur-site", "larkspur-site"},
        {"/elsewhere/x/", "-home-ann-y", "x"},
        {"", "-home-ann-larkspur-site", "larkspur-site"},
        {"", "-srv-x", "-srv-x"},
        {"", "", ""},
        {"/home/ann/a\nb", "", "a b"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(
            projectName(QString::fromUtf8(c.folder), QString::fromUtf8(c.stored), u"/home/ann"_s)
                .toStdString(),
            c.name)
            << c.folder << ' ' << c.stored;
    }
}

} // namespace
} // namespace ravelo
