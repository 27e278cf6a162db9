#include "platform/freedesktop/IconTheme.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct IconCase {
    const char* name;
    QString theme;
    QStringList icons;
    int size;
    QString found; ///< Below the two folders.
};

class Icons : public testing::TestWithParam<IconCase> {
protected:
    Icons() {
        describe(u"user/Paper"_s,
                 "Inherits=Round,Paper\nDirectories=mimes/16,mimes/64,apps/64,big\n"
                 "ScaledDirectories=mimes/32@2\n"
                 "[mimes/16]\nSize=16\nContext=MimeTypes\n"
                 "[mimes/64]\nSize=64\nContext=MimeTypes\n"
                 "[mimes/32@2]\nSize=32\nScale=2\nContext=MimeTypes\n"
                 "[apps/64]\nSize=64\nContext=Applications\n"
                 "[big]\nSize=96\nMinSize=80\nMaxSize=512\nType=Scalable\n"
                 "Context=Places\n");
        describe(u"system/Round"_s,
                 "Inherits=Paper\nDirectories=48\n[48]\nSize=48\nContext=MimeTypes\n");
        describe(u"system/hicolor"_s, "Directories=64\n[64]\nSize=64\nContext=MimeTypes\n");
        for (const auto* icon :
             {"user/Paper/mimes/16/text-plain", "system/Paper/mimes/64/text-plain",
              "user/Paper/mimes/16/text-x-generic", "user/Paper/apps/64/application-pdf",
              "user/Paper/mimes/16/folder", "user/Paper/big/folder", "system/Round/48/image-png",
              "user/Paper/mimes/32@2/video-mp4", "system/hicolor/64/application-zip",
              "system/hicolor/64/text-plain"}) {
            touch(QString::fromLatin1(icon) + u".png"_s);
        }
    }

    void describe(const QString& theme, const QByteArray& text) {
        write(theme + u"/index.theme"_s, "[Icon Theme]\n" + text);
    }

    void touch(const QString& path) { write(path, {}); }

    void write(const QString& path, const QByteArray& text) {
        QDir(folder_.path()).mkpath(path.section(u'/', 0, -2));
        QFile file(folder_.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir folder_;
    IconTheme icons_{{folder_.filePath(u"user"_s), folder_.filePath(u"system"_s)}};
};

TEST_P(Icons, areTheBestThatThereAre) {
    icons_.setName(u"Round"_s);
    (void)icons_.find({u"image-png"_s}, 64); // It is no longer that one.
    icons_.setName(GetParam().theme);
    const QString found = icons_.find(GetParam().icons, GetParam().size);
    EXPECT_EQ(found.mid(folder_.path().size() + 1), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(
    All, Icons,
    testing::Values(
        IconCase{"nearestSize",
                 u"Paper"_s,
                 {u"text-plain"_s},
                 56,
                 u"system/Paper/mimes/64/text-plain.png"_s},
        IconCase{"theFirstOfSeveral",
                 u"Paper"_s,
                 {u"text-x-c"_s, u"text-x-generic"_s},
                 56,
                 u"user/Paper/mimes/16/text-x-generic.png"_s},
        IconCase{"forDenseScreens",
                 u"Paper"_s,
                 {u"video-mp4"_s},
                 64,
                 u"user/Paper/mimes/32@2/video-mp4.png"_s},
        IconCase{
            "scalableInItsRange", u"Paper"_s, {u"folder"_s}, 128, u"user/Paper/big/folder.png"_s},
        IconCase{"smallerRatherThanEnlarged",
                 u"Paper"_s,
                 {u"folder"_s},
                 40,
                 u"user/Paper/big/folder.png"_s},
        IconCase{"inherited", u"Paper"_s, {u"image-png"_s}, 56, u"system/Round/48/image-png.png"_s},
        IconCase{"atLast",
                 u"Paper"_s,
                 {u"application-zip"_s},
                 56,
                 u"system/hicolor/64/application-zip.png"_s},
        IconCase{"notOfPrograms", u"Paper"_s, {u"application-pdf"_s}, 56, {}},
        IconCase{"ofNoTheme", {}, {u"text-plain"_s}, 56, u"system/hicolor/64/text-plain.png"_s},
        IconCase{"ofAnUnknownTheme", u"../user/Paper"_s, {u"text-x-generic"_s}, 56, {}}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace ravelo
