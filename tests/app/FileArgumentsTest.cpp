#include "app/FileArguments.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(FileArguments, FindsTheFileOrReportsAnError) {
    const QTemporaryDir directory;
    const QDir folder(QFileInfo(directory.path()).canonicalFilePath());
    for (const QString& name : {u"a b"_s, u"-x"_s, u"ü\n%41#?"_s, u"there/inner/c"_s, u"b"_s}) {
        makeFile(folder.filePath(name));
    }
    ASSERT_TRUE(QFile::link(folder.filePath(u"there/inner"_s), folder.filePath(u"link"_s)));
    ASSERT_TRUE(QFile::link(folder.filePath(u"gone"_s), folder.filePath(u"dangling"_s)));
    const QByteArray here = QFile::encodeName(folder.path());

    struct Case {
        QByteArray name;
        QString found; ///< Empty for none.
    };

    const Case cases[] = {
        {"a b", u"a b"_s},
        {"./there/..//a b", u"a b"_s},
        {"-x", u"-x"_s},
        {"ü\n%41#?", u"ü\n%41#?"_s},
        {"there/", u"there"_s},
        {here + "/b", u"b"_s},
        {"file://" + here + "/a%20b", u"a b"_s},
        {"file:" + here + "/%C3%BC%0a%2541%23%3f", u"ü\n%41#?"_s},
        {"file://localhost" + here + "/b", u"b"_s},
        {"link/c", u"link/c"_s},
        {"link/../inner/c", u"there/inner/c"_s}, // Above what the link stands for.
        {"link/../b", {}},
        {"dangling", {}},
        {"", {}},
        {"b\xff", {}},
        {"file://" + here + "/b%FF", {}},
        {"file://" + here + "/b%00", {}},
        {"file://elsewhere" + here + "/b", {}},
        {"file://b", {}},
        {"https://example.org/", {}},
    };
    for (const Case& c : cases) {
        const auto file = existingFile(c.name, here);
        EXPECT_EQ(file.value_or(QString()),
                  c.found.isEmpty() ? QString() : folder.path() + u'/' + c.found)
            << c.name.constData();
        if (!file) {
            EXPECT_TRUE(file.error().message.endsWith(u": "_s + QString::fromUtf8(c.name)));
        }
    }
}

} // namespace

} // namespace ravelo
