#include "platform/freedesktop/files/IconTheme.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Icons : public testing::Test {
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
            makeFile(folder_.filePath(QString::fromLatin1(icon) + u".png"_s));
        }
    }

    void describe(const QString& theme, const QByteArray& text) {
        makeFile(folder_.filePath(theme + u"/index.theme"_s), "[Icon Theme]\n" + text);
    }

    QTemporaryDir folder_;
    IconTheme icons_{{folder_.filePath(u"user"_s), folder_.filePath(u"system"_s)}};
};

TEST_F(Icons, areTheBestAvailable) {
    struct Case {
        const char* theme;
        QStringList icons;
        int size;
        const char* found; ///< Below the two folders, without the extension.
    };

    const Case cases[] = {
        // The nearest size, the first of several names, for dense screens:
        {"Paper", {u"text-plain"_s}, 56, "system/Paper/mimes/64/text-plain"},
        {"Paper", {u"text-x-c"_s, u"text-x-generic"_s}, 56, "user/Paper/mimes/16/text-x-generic"},
        {"Paper", {u"video-mp4"_s}, 64, "user/Paper/mimes/32@2/video-mp4"},
        // Scalable within its range, and rather made smaller than larger:
        {"Paper", {u"folder"_s}, 128, "user/Paper/big/folder"},
        {"Paper", {u"folder"_s}, 40, "user/Paper/big/folder"},
        // Inherited, from hicolor at last, and never one of a program:
        {"Paper", {u"image-png"_s}, 56, "system/Round/48/image-png"},
        {"Paper", {u"application-zip"_s}, 56, "system/hicolor/64/application-zip"},
        {"Paper", {u"application-pdf"_s}, 56, ""},
        // No theme, and a name that leaves the folder:
        {"", {u"text-plain"_s}, 56, "system/hicolor/64/text-plain"},
        {"../user/Paper", {u"text-x-generic"_s}, 56, ""},
    };
    for (const Case& c : cases) {
        icons_.setName(u"Round"_s);
        (void)icons_.find({u"image-png"_s}, 64); // Nothing of that theme stays.
        icons_.setName(QString::fromLatin1(c.theme));
        const QString found = icons_.find(c.icons, c.size).mid(folder_.path().size() + 1);
        EXPECT_EQ(found.toStdString(), *c.found ? c.found + std::string(".png") : "")
            << qPrintable(c.icons.first()) << " of " << c.theme;
    }
}

} // namespace

} // namespace ravelo
