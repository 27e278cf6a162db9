#include "platform/freedesktop/files/DefaultProgram.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <map>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QByteArray entry(const QByteArray& name, const QByteArray& more = {}) {
    return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + more +
           "[Desktop Action x]\nName=Wrong\n";
}

TEST(DefaultProgram, isTheOneThatTheDesktopStarts) {
    struct Case {
        const char* name;
        std::map<const char*, QByteArray> files; ///< Besides those of two programs.
        const char* program;
    };

    const QByteArray opensA = "door=a.desktop;\n";
    const QByteArray opensB =
        "[Default Applications]\nx-scheme-handler/door=gone.desktop;b.desktop;\n";
    const QByteArray cache = "[MIME Cache]\nx-scheme-handler/";
    const char* const cachePath = "system/applications/mimeinfo.cache";
    const char* const userList = "config/mimeapps.list";
    const Case cases[] = {
        {"none", {}, ""},
        {"installed", {{cachePath, cache + opensA}}, "A"},
        {"chosen by the user", {{userList, opensB}, {cachePath, cache + opensA}}, "B"},
        {"of this desktop",
         {{userList, "[Default Applications]\nx-scheme-handler/" + opensA},
          {"config/kde-mimeapps.list", opensB}},
         "B"},
        {"removed by the user",
         {{userList, "[Removed Associations]\nx-scheme-handler/" + opensA},
          {cachePath, cache + opensA}},
         ""},
        {"hidden by the user",
         {{cachePath, cache + opensA},
          {"user/applications/a.desktop", entry("A", "Hidden=true\n")}},
         ""},
        {"in a folder",
         {{cachePath, cache + "door=org-kde-a.desktop\n"},
          {"system/applications/org/kde-a.desktop", entry("Deep")}},
         "Deep"},
        {"beginning with a dash",
         {{userList, "[Default Applications]\nx-scheme-handler/door=-gone.desktop;b.desktop;\n"}},
         "B"},
        {"in the user's language",
         {{cachePath, cache + "door=c.desktop\n"},
          {"system/applications/c.desktop", entry("Door", "Name[de]=T\nName[pt]=Porta\n")}},
         "Porta"},
        {"outside of the folder",
         {{cachePath, cache + "door=../x.desktop\n"}, {"system/x.desktop", entry("X")}},
         ""},
        {"garbage", {{cachePath, "\xff]=[\n=\nx-scheme-handler/door\n[[]"}}, ""},
    };
    for (auto [name, files, program] : cases) {
        const QTemporaryDir folder;
        files.insert({{"system/applications/a.desktop", entry("A")},
                      {"system/applications/b.desktop", entry("B")}});
        for (const auto& [path, contents] : files) {
            makeFile(folder.filePath(QString::fromLatin1(path)), contents);
        }
        const ProgramFolders folders{{folder.filePath(u"config"_s)},
                                     {folder.filePath(u"user"_s), folder.filePath(u"system"_s)},
                                     {u"kde"_s}};
        EXPECT_EQ(defaultProgram(u"x-scheme-handler/door"_s, folders, {u"pt_BR"_s, u"pt"_s}),
                  QString::fromLatin1(program))
            << name;
    }
}

} // namespace

} // namespace ravelo
