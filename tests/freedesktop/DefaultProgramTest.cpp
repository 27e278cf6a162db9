#include "platform/freedesktop/DefaultProgram.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <map>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct ProgramCase {
    const char* name;
    std::map<QString, QByteArray> files;
    QString program;
};

QByteArray entry(const QByteArray& name, const QByteArray& more = {}) {
    return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + more +
           "[Desktop Action x]\nName=Wrong\n";
}

class DefaultProgram : public testing::TestWithParam<ProgramCase> {};

TEST_P(DefaultProgram, isTheOneThatTheDesktopWouldStart) {
    const QTemporaryDir folder;
    for (const auto& [path, contents] : GetParam().files) {
        const QString absolute = folder.filePath(path);
        QDir().mkpath(absolute.section(u'/', 0, -2));
        QFile file(absolute);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    const ProgramFolders folders{{folder.filePath(u"config"_s)},
                                 {folder.filePath(u"user"_s), folder.filePath(u"system"_s)},
                                 {u"kde"_s}};
    EXPECT_EQ(defaultProgram(u"x-scheme-handler/door"_s, folders, {u"pt_BR"_s, u"pt"_s}),
              GetParam().program);
}

const auto apps = u"system/applications/"_s;
const QByteArray opensB = "[Default Applications]\nx-scheme-handler/door=gone.desktop;b.desktop;\n";
const QByteArray cacheA = "[MIME Cache]\nx-scheme-handler/door=a.desktop;\n";

INSTANTIATE_TEST_SUITE_P(
    All, DefaultProgram,
    testing::Values(
        ProgramCase{"none", {}, {}},
        ProgramCase{"installed",
                    {{apps + u"mimeinfo.cache"_s, cacheA}, {apps + u"a.desktop"_s, entry("A")}},
                    u"A"_s},
        ProgramCase{"chosenByTheUser",
                    {{u"config/mimeapps.list"_s, opensB},
                     {apps + u"mimeinfo.cache"_s, cacheA},
                     {apps + u"a.desktop"_s, entry("A")},
                     {apps + u"b.desktop"_s, entry("B")}},
                    u"B"_s},
        ProgramCase{"ofThisDesktop",
                    {{u"config/mimeapps.list"_s, cacheA},
                     {u"config/kde-mimeapps.list"_s, opensB},
                     {apps + u"b.desktop"_s, entry("B")}},
                    u"B"_s},
        ProgramCase{"removedByTheUser",
                    {{u"config/mimeapps.list"_s,
                      "[Removed Associations]\nx-scheme-handler/door=a.desktop\n"},
                     {apps + u"mimeinfo.cache"_s, cacheA},
                     {apps + u"a.desktop"_s, entry("A")}},
                    {}},
        ProgramCase{"hiddenByTheUser",
                    {{apps + u"mimeinfo.cache"_s, cacheA},
                     {apps + u"a.desktop"_s, entry("A")},
                     {u"user/applications/a.desktop"_s, entry("A", "Hidden=true\n")}},
                    {}},
        ProgramCase{"inAFolder",
                    {{apps + u"mimeinfo.cache"_s,
                      "[MIME Cache]\nx-scheme-handler/door=org-kde-a.desktop\n"},
                     {apps + u"org/kde-a.desktop"_s, entry("Deep")}},
                    u"Deep"_s},
        ProgramCase{"inTheUsersLanguage",
                    {{apps + u"mimeinfo.cache"_s, cacheA},
                     {apps + u"a.desktop"_s, entry("Door", "Name[de]=T\nName[pt]=Porta\n")}},
                    u"Porta"_s},
        ProgramCase{
            "outsideOfTheFolder",
            {{apps + u"mimeinfo.cache"_s, "[MIME Cache]\nx-scheme-handler/door=../x.desktop\n"},
             {u"system/x.desktop"_s, entry("X")}},
            {}},
        ProgramCase{"garbage",
                    {{apps + u"mimeinfo.cache"_s, "\xff]=[\n=\nx-scheme-handler/door\n[[]"}},
                    {}}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace ravelo
