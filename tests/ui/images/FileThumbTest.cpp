#include "ui/images/FileThumb.h"
#include "base/FileUrl.h"
#include "fakes/FakeFiles.h"
#include "fakes/InProcessDecoder.h"
#include "support/GreenHeic.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImageWriter>
#include <QTemporaryDir>

#include <cstdio>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QImage thumbOf(const QUrl& file) {
    InProcessDecoder decoder;
    return fileThumb(file, 1, NoFileIcons(), decoder);
}

class FileThumb : public testing::TestWithParam<std::pair<const char*, QSize>> {};

TEST_P(FileThumb, isThePictureWhereOneCanBeReadAndAnIconElsewhere) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8(GetParam().first));
    QImage wide(200, 100, QImage::Format_RGB32);
    wide.fill(Qt::green);
    ASSERT_TRUE(wide.save(path, "png"));
    const QImage thumb = thumbOf(QUrl::fromLocalFile(path));
    EXPECT_EQ(thumb.size(), GetParam().second);
    const bool pictured = thumb.size() == QSize(72, 56);
    EXPECT_EQ(thumb.pixelColor(thumb.rect().center()) == QColor(Qt::green), pictured);
}

INSTANTIATE_TEST_SUITE_P(All, FileThumb,
                         testing::Values(std::pair("photo.png", QSize(72, 56)),
                                         std::pair("PHOTO.HEIC", QSize(72, 56)),
                                         std::pair("a #1 100% ü.JPeG", QSize(72, 56)),
                                         std::pair("print.pdf", QSize(64, 64)),
                                         std::pair("png", QSize(64, 64))));

TEST(FileThumbs, showWhatTelephonesWrite) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"IMG_4821.HEIC"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(greenHeic());
    file.close();
    const QUrl url = QUrl::fromLocalFile(file.fileName());
    const QImage thumb = thumbOf(url);
    EXPECT_EQ(thumb.size(), QSize(72, 56));
    EXPECT_GT(thumb.pixelColor(36, 28).green(), 200);
    EXPECT_LT(thumb.pixelColor(36, 28).red(), 50);
    file.resize(300);
    EXPECT_EQ(thumbOf(url).size(), QSize(64, 64)) << "an icon: it is cut off";

    const QString upright = folder.filePath(u"upright.jpg"_s);
    QImageWriter camera(upright);
    camera.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(camera.write(QImage(200, 150, QImage::Format_RGB32)));
    EXPECT_EQ(thumbOf(QUrl::fromLocalFile(upright)).size(), QSize(42, 56));
}

TEST(FileThumbs, areMadeOfFilesWhoseNamesAreNotUtf8) {
    const QTemporaryDir folder;
    const QString plain = folder.filePath(u"photo.png"_s);
    ASSERT_TRUE(QImage(200, 100, QImage::Format_RGB32).save(plain));
    const QByteArray odd = QFile::encodeName(folder.path()) + "/\xe4.png";
    ASSERT_EQ(std::rename(QFile::encodeName(plain).constData(), odd.constData()), 0);
    EXPECT_EQ(thumbOf(fileUrl(odd)).size(), QSize(72, 56));
    EXPECT_EQ(std::remove(odd.constData()), 0); // Qt would not find it.
}

TEST(FileThumbs, surviveTheWayThroughAnAddress) {
    for (const QByteArray path : {"/a b/c#d?e%20ü/ñ.png", "/no utf-8 \xe4.png"}) {
        const QString address = fileThumbAddress(fileUrl(path));
        EXPECT_EQ(filePath(fileOfThumb(QUrl(address).path().mid(1))), path);
    }
}

} // namespace

} // namespace ravelo
