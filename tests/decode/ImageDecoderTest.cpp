// What every decoder must do; run on the one in memory and on the real one.

#include "Samples.h"
#include "fakes/InProcessDecoder.h"
#include "platform/system/DecoderProcess.h"
#include "support/TestFiles.h"

#include <QImageWriter>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

template <typename Decoder>
std::unique_ptr<ImageDecoder> make();

template <>
std::unique_ptr<ImageDecoder> make<InProcessDecoder>() {
    return std::make_unique<InProcessDecoder>();
}

template <>
std::unique_ptr<ImageDecoder> make<DecoderProcess>() {
    return std::make_unique<DecoderProcess>(RAVELO_DECODE, "/nowhere");
}

template <typename Decoder>
class Decoding : public testing::Test {
public:
    PictureFile write(const QByteArray& bytes, const QString& name = u"picture.png"_s) {
        return {QFile::encodeName(makeFile(folder.filePath(name), bytes))};
    }

    std::unique_ptr<ImageDecoder> decoder = make<Decoder>();
    QTemporaryDir folder;
};

using Decoders = testing::Types<InProcessDecoder, DecoderProcess>;
TYPED_TEST_SUITE(Decoding, Decoders);

TYPED_TEST(Decoding, ReadsEachFormatWhateverItsName) {
    for (const QByteArray format : samples::formats) {
        const QByteArray bytes = samples::picture(format);
        EXPECT_EQ(sizeOf(*this->decoder, bytes), samples::size) << format.constData();
        const QByteArray png = this->decoder->png(this->write(bytes));
        EXPECT_EQ(QImage::fromData(png, "png").size(), samples::size) << format.constData();
        const QImage filled = this->decoder->filling(this->write(bytes), {10, 10, 30});
        EXPECT_EQ(filled.size(), QSize(20, 10)) << format.constData();
        EXPECT_EQ(filled.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_GT(filled.pixelColor(9, 5).green(), 200) << format.constData();
        EXPECT_LT(filled.pixelColor(9, 5).red(), 50) << format.constData();
    }
}

TYPED_TEST(Decoding, CutsOutTheMiddleAndTurnsUpright) {
    QImage striped(300, 100, QImage::Format_RGB32);
    striped.fill(Qt::red);
    for (int x = 100; x < 200; ++x) {
        for (int y = 0; y < 100; ++y) {
            striped.setPixelColor(x, y, Qt::blue);
        }
    }
    const QString wide = this->folder.filePath(u"wide.png"_s);
    ASSERT_TRUE(striped.save(wide));
    const QImage middle =
        this->decoder->filling(PictureFile{QFile::encodeName(wide)}, {20, 20, 20});
    EXPECT_EQ(middle.pixelColor(1, 10), QColor(Qt::blue)) << "more than the middle third shows";
    EXPECT_EQ(middle.pixelColor(18, 10), QColor(Qt::blue)) << "more than the middle third shows";

    const QString upright = this->folder.filePath(u"upright.jpg"_s);
    QImageWriter camera(upright);
    camera.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(camera.write(striped));
    EXPECT_EQ(sizeOf(*this->decoder, PictureFile{QFile::encodeName(upright)}), QSize(100, 300));
    EXPECT_EQ(this->decoder->filling(PictureFile{QFile::encodeName(upright)}, {30, 1, 90}).size(),
              QSize(10, 30));
}

TYPED_TEST(Decoding, DecodesDrawingsAsIconsOnly) {
    const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10">)"
                           R"(<rect width="20" height="10" fill="lime"/></svg>)";
    const PictureFile file = this->write(svg);
    const QImage icon = this->decoder->icon(file, 40);
    EXPECT_EQ(icon.size(), QSize(40, 20));
    EXPECT_EQ(icon.pixelColor(20, 10), QColor(Qt::green));
    EXPECT_EQ(sizeOf(*this->decoder, file), QSize()) << "an SVG called .png counts as a picture";
    EXPECT_TRUE(this->decoder->filling(file, {10, 10, 10}).isNull());
    EXPECT_TRUE(this->decoder->png(file).isEmpty());
}

TYPED_TEST(Decoding, RefusesWhatIsNotAPictureFile) {
    const QString pipe = this->folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    const PictureFile big = this->write(samples::picture("bmp"), u"big.bmp"_s);
    ASSERT_TRUE(QFile::resize(QFile::decodeName(big.path), decode::maxBytes + 1));
    for (const QByteArray& path :
         {QFile::encodeName(pipe), big.path, QFile::encodeName(this->folder.path()),
          QByteArray("/no/such/file.png"), QByteArray("/dev/zero")}) {
        EXPECT_EQ(sizeOf(*this->decoder, PictureFile{path}), QSize()) << path.constData();
    }
}

TYPED_TEST(Decoding, ReadsALargeJpegOnlyForAThumbnail) {
    QImage large(9000, 6000, QImage::Format_Grayscale8);
    large.fill(Qt::gray);
    const QString path = this->folder.filePath(u"large.jpg"_s);
    ASSERT_TRUE(large.save(path, "jpeg"));
    const PictureFile file{QFile::encodeName(path)};
    EXPECT_EQ(this->decoder->filling(file, {20, 10, 40}).size(), QSize(30, 20));
    EXPECT_TRUE(this->decoder->png(file).isEmpty()) << "54 million pixels";
    EXPECT_EQ(this->decoder->look(file).kind, PictureLook::Kind::tooManyPixels);
    EXPECT_EQ(this->decoder->look(file).pixels(), 54'000'000);
}

} // namespace

} // namespace ravelo
