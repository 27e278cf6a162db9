#include "app/SecondPlan.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(SecondPlan, NeedsTheFolderOfAnotherAccount) {
    const QTemporaryDir directory;
    const QDir home(directory.path());
    ASSERT_TRUE(home.mkpath(u"empty"_s));
    ASSERT_TRUE(home.mkpath(u".claude"_s));
    makeFile(home.filePath(u"first/.credentials.json"_s));
    makeFile(home.filePath(u"second/.credentials.json"_s));
    ASSERT_TRUE(QFile::link(home.filePath(u"first"_s), home.filePath(u"link"_s)));
    const QByteArrayList others{QFile::encodeName(home.filePath(u"first"_s)),
                                QFile::encodeName(home.filePath(u"second"_s))};
    const std::pair<QString, QString> cases[] = {
        {u""_s, u""_s},
        {u"~/second"_s, u""_s},
        {home.filePath(u"second/"_s), u""_s},
        {u"second"_s, u"No such folder"_s},
        {u"~/gone"_s, u"No such folder"_s},
        {u"~/second/.credentials.json"_s, u"No such folder"_s},
        {u"~/empty"_s, u"No login there"_s},
        {u"~/.claude"_s, u"That is the first account"_s},
        {u"~/link"_s, u"That is the first account"_s},
    };
    for (const auto& [folder, problem] : cases) {
        EXPECT_EQ(secondAccountProblem(folder, home.path(), others), problem) << qPrintable(folder);
    }
}

} // namespace

} // namespace ravelo
