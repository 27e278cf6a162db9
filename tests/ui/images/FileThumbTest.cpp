#include "ui/images/FileThumb.h"
#include "base/FileUrl.h"
#include "fakes/FakeFiles.h"
#include "fakes/InProcessDecoder.h"
#include "support/GreenHeic.h"
#include "support/TestFiles.h"

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

TEST(FileThumbs, showImagesAndIconsForOtherFiles) {
    const QTemporaryDir folder;
    QImage wide(200, 100, QImage::Format_RGB32);
    wide.fill(Qt::green);
    for (const auto& [name, size] : {std::pair("photo.png", QSize(72, 56)),
                                     {"PHOTO.HEIC", {72, 56}},
                                     {"a #1 100% ü.JPeG", {72, 56}},
                                     {"print.pdf", {64, 64}},
                                     {"png", {64, 64}}}) {
        const QString path = folder.filePath(QString::fromUtf8(name));
        ASSERT_TRUE(wide.save(path, "png"));
        const QImage thumb = thumbOf(QUrl::fromLocalFile(path));
        EXPECT_EQ(thumb.size(), size) << name;
        const bool pictured = thumb.size() == QSize(72, 56);
        EXPECT_EQ(thumb.pixelColor(thumb.rect().center()) == QColor(Qt::green), pictured) << name;
    }
}

TEST(FileThumbs, showPicturesOfPhones) {
    const QTemporaryDir folder;
    const QString file = makeFile(folder.filePath(u"IMG_4821.HEIC"_s), greenHeic());
    const QUrl url = QUrl::fromLocalFile(file);
    const QImage thumb = thumbOf(url);
    EXPECT_EQ(thumb.size(), QSize(72, 56));
    EXPECT_GT(thumb.pixelColor(36, 28).green(), 200);
    EXPECT_LT(thumb.pixelColor(36, 28).red(), 50);
    ASSERT_TRUE(QFile::resize(file, 300));
    EXPECT_EQ(thumbOf(url).size(), QSize(64, 64)) << "an icon, since it is truncated";

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

TEST(FileThumbs, surviveConversionToAnAddress) {
    for (const QByteArray path : {"/a b/c#d?e%20ü/ñ.png", "/no utf-8 \xe4.png"}) {
        const QString address = fileThumbAddress(fileUrl(path));
        EXPECT_EQ(filePath(fileOfThumb(QUrl(address).path().mid(1))), path);
    }
}

} // namespace

} // namespace ravelo
