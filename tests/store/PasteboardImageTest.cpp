#include "store/images/PasteboardImage.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/InProcessDecoder.h"
#include "fakes/ManualScheduler.h"
#include "fakes/MemoryPasteboard.h"
#include "store/images/CopiedFile.h"
#include "support/TestFiles.h"
#include "support/TestPictures.h"

#include <QTemporaryDir>
#include <QUrl>
#include <QtEndian>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A BMP of a few bytes that says it has 3.6 thousand million pixels.
QByteArray bomb() {
    QByteArray bytes = picture("bmp", Qt::red);
    const QByteArray side("\x60\xea\x00\x00", 4);
    return bytes.replace(18, 4, side).replace(22, 4, side);
}

/// The bytes that a word of the tables stands for: "bmp:red" is a red BMP.
QByteArray contents(const QString& word) {
    const QStringList parts = word.split(u':');
    if (parts.size() == 2) {
        return picture(parts[0].toLatin1().constData(), QColor(parts[1]));
    }
    if (word == "svg"_L1) {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20">)"
               R"(<rect width="20" height="20" fill="red"/></svg>)";
    }
    if (word == "huge"_L1) { // In both directions more than a PNG may have.
        return picture("png", Qt::red).replace(16, 8, QByteArray(8, '\xff'));
    }
    if (word == "cut"_L1) {
        return picture("tiff", Qt::red).first(60);
    }
    return word == "bomb"_L1 ? bomb() : word == "refused"_L1 ? QByteArray() : word.toUtf8();
}

class OfferedImage : public testing::Test {
protected:
    void offer(const QString& forms) {
        QList<PasteboardEntry> entries;
        for (const QString& form : forms.split(u' ')) {
            entries.append({form.section(u'=', 0, 0), contents(form.section(u'=', 1))});
        }
        pasteboard_.offer(entries);
    }

    QByteArray image() {
        PasteboardSnapshot snapshot;
        const Handle reading =
            pasteboard_.read([&](const PasteboardSnapshot& read) { return nextImageType(read); },
                             [&](const PasteboardSnapshot& read) { snapshot = read; });
        scheduler_.advance(Seconds(1));
        CopiedContents file;
        const Handle readingFile = readCopiedFile(jobs_, scheduler_, copiedFile(snapshot),
                                                  [&](const auto& read) { file = read; });
        scheduler_.advance(Seconds(0));
        return imageToKeep(snapshot, file, decoder_).png;
    }

    ManualScheduler scheduler_;
    MemoryPasteboard pasteboard_{scheduler_};
    FakeDetachedJobs jobs_{scheduler_};
    InProcessDecoder decoder_;
};

TEST_F(OfferedImage, IsTheBestAvailable) {
    struct Row {
        const char* forms; ///< In the owner's order, "type=contents".
        const char* asked; ///< The types that are read.
        const char* color; ///< Of the image that is made of it.
    };

    const Row table[] = {
        {"image/bmp=bmp:red image/tiff=tiff:lime image/png=png:blue", "image/png", "blue"},
        {"image/bmp=bmp:red image/tiff=tiff:lime", "image/tiff", "green"},
        {"image/png=refused image/tiff=tiff:lime", "image/png image/tiff", "green"},
        {"image/tiff=junk image/bmp=bmp:blue", "image/tiff image/bmp", "blue"},
        {"image/bmp=bmp:blue image/jpeg=jpeg:red", "image/jpeg", "red"},
        {"image/png=bmp:red", "image/png", "red"},
        {"image/png=huge", "image/png", "none"},
        {"image/gif=junk image/webp=webp:blue", "image/webp", "blue"},
        {"image/x-rare=png:red image/gif=junk", "image/gif image/x-rare", "red"},
        {"image/bmp=svg image/x-rare=bmp:blue", "image/bmp image/x-rare", "blue"},
        {"image/bmp=bomb", "image/bmp", "none"},
        {"image/bmp=svg", "image/bmp", "none"},
        {"image/svg+xml=svg text/plain=svg", "", "none"},
        {"text/html=x text/plain=y", "", "none"},
        {"text/uri-list=http://a.example/x.png", "text/uri-list", "none"},
        {"image/tiff=refused text/uri-list=junk", "image/tiff text/uri-list", "none"},
    };
    for (const auto& [forms, asked, color] : table) {
        const qsizetype before = pasteboard_.asked().size();
        offer(QString::fromUtf8(forms));
        const QByteArray kept = image();
        EXPECT_EQ(colorOf(kept), color) << forms;
        EXPECT_TRUE(kept.isEmpty() || kept.startsWith("\x89PNG")) << forms << ": cannot be pasted";
        EXPECT_EQ(pasteboard_.asked().mid(before).join(u' ').toStdString(), asked) << forms;
    }
}

TEST_F(OfferedImage, KeepsPngBytesUnchanged) {
    const QByteArray bytes = picture("png", Qt::red) + "and what a program may add to it";
    pasteboard_.offer({{u"image/png"_s, bytes}});
    EXPECT_EQ(image(), bytes);
}

TEST_F(OfferedImage, APngOf16BitsIsKeptOnlyIfItCanBeReadBack) {
    const auto kept = [this](int side, char type) {
        QByteArray bytes = picture("png", Qt::red);
        qToBigEndian(qint32(side), bytes.data() + 16);
        qToBigEndian(qint32(side), bytes.data() + 20);
        bytes[24] = 16;
        bytes[25] = type;
        return imageToKeep({{u"image/png"_s}, {{u"image/png"_s, bytes}}}, {}, decoder_);
    };
    const KeptImage large = kept(5200, 2);
    ASSERT_TRUE(large.tooLarge);
    EXPECT_EQ(large.tooLarge->kind, TooLarge::Kind::deepPixels);
    EXPECT_EQ(large.tooLarge->amount, 5200 * 5200);
    EXPECT_TRUE(large.png.isEmpty());
    EXPECT_FALSE(kept(4096, 6).png.isEmpty()) << "takes 128 MB";
    EXPECT_FALSE(kept(5200, 0).png.isEmpty()) << "grey";
}

class CopiedFile : public OfferedImage {
protected:
    QUrl write(const QString& name, const QByteArray& bytes) {
        return QUrl::fromLocalFile(makeFile(folder_.filePath(name), bytes));
    }

    std::string colorOfList(const QByteArray& uriList) {
        pasteboard_.offer({{u"text/uri-list"_s, uriList}});
        return colorOf(image());
    }

    QTemporaryDir folder_;
};

TEST_F(CopiedFile, TheFirstOfThisMachineIsRead) {
    const QByteArray red = write(u"a ü#1.jpg"_s, picture("jpeg", Qt::red)).toEncoded();
    const QByteArray blue = write(u"misnamed.txt"_s, picture("bmp", Qt::blue)).toEncoded();
    const QByteArray elsewhere = QByteArray(blue).replace("file://", "file://far.example");
    EXPECT_EQ(colorOfList(red + "\r\n" + blue + "\r\n"), "red");
    EXPECT_EQ(colorOfList("# a comment\r\n\r\nhttp://a.example/b\n" + blue), "blue");
    EXPECT_EQ(colorOfList(elsewhere + "\r\n" + red), "red");
    EXPECT_EQ(colorOfList(QByteArray(red).replace("file://", "file://localhost")), "red");
}

TEST_F(CopiedFile, IsIgnoredIfItIsNotAPicture) {
    const QString pipe = folder_.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    const QUrl big = write(u"big.bmp"_s, picture("bmp", Qt::red));
    ASSERT_TRUE(QFile::resize(big.toLocalFile(), 64 * 1024 * 1024 + 1));

    EXPECT_EQ(colorOfList(QUrl::fromLocalFile(pipe).toEncoded()), "none") << "a pipe";
    EXPECT_EQ(colorOfList(big.toEncoded()), "none") << "a file of more than 64 MiB";
    EXPECT_EQ(colorOfList(QUrl::fromLocalFile(folder_.path()).toEncoded()), "none") << "a folder";
    EXPECT_EQ(colorOfList(write(u"a"_s, contents(u"bomb"_s)).toEncoded()), "none") << "a bomb";
    EXPECT_EQ(colorOfList(write(u"b.svg"_s, contents(u"svg"_s)).toEncoded()), "none")
        << "a drawing";
    EXPECT_EQ(colorOfList("file:///no/such/file.png"), "none") << "a missing file";
}

} // namespace

} // namespace ravelo
