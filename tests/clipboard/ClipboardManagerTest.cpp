#include "ClipboardFixture.h"
#include "clipboard/FileForms.h"

#include <QFile>
#include <QUrl>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct CaptureCase {
    const char* name;
    QList<PasteboardEntry> offered;
    QStringList expected; ///< Texts of the clips.
};

class CaptureTable : public Clipboard, public testing::WithParamInterface<CaptureCase> {};

TEST_P(CaptureTable, keepsWhatTheOwnerMeansToBeKept) {
    pasteboard.offer(GetParam().offered);
    settle();
    settle(); // Another form may have to be asked for.
    EXPECT_EQ(texts(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, CaptureTable,
    testing::Values(
        CaptureCase{"text", {text("abc")}, {u"abc"_s}},
        CaptureCase{"trimmed", {text(" \n\tabc\u00a0\r\n")}, {u"abc"_s}},
        CaptureCase{"blank", {text(" \n ")}, {}},
        CaptureCase{"textBeforeImage", {{u"image/png"_s, picture("png")}, text("abc")}, {u"abc"_s}},
        CaptureCase{
            "blankTextThenImage", {text("  "), {u"image/png"_s, picture("png")}}, {u"Image"_s}},
        CaptureCase{"filesInALine",
                    {text("/tmp/a b /tmp/c /d"),
                     {u"text/uri-list"_s, "file:///tmp/a%20b\r\nfile:///tmp/c\r\nfile:///d\r\n"}},
                    {u"/tmp/a b\n/tmp/c\n/d"_s}},
        CaptureCase{"otherFilesThanInTheLine",
                    {text("/tmp/a /tmp/c"), {u"text/uri-list"_s, "file:///tmp/a\r\n"}},
                    {u"/tmp/a /tmp/c"_s}},
        CaptureCase{"png", {{u"image/png"_s, picture("png")}}, {u"Image"_s}},
        CaptureCase{"bmp", {{u"image/bmp"_s, picture("bmp")}}, {u"Image"_s}},
        CaptureCase{"brokenTiffThenBmp",
                    {{u"image/tiff"_s, "II*"}, {u"image/bmp"_s, picture("bmp")}},
                    {u"Image"_s}},
        CaptureCase{"onlyTheBeginningOfAWebpThenBmp",
                    {{u"image/webp"_s, QByteArray("RIFF\0\0\0\0WEBP", 12)},
                     {u"image/bmp"_s, picture("bmp")}},
                    {u"Image"_s}},
        CaptureCase{"noImageAtAll", {{u"image/tiff"_s, "II*"}}, {}},
        CaptureCase{"concealedText", {text("pass"), {u"org.nspasteboard.ConcealedType"_s, ""}}, {}},
        CaptureCase{"passwordHint", {text("pass"), secret}, {}},
        CaptureCase{"clearedByAManager", {text(""), secret}, {}},
        CaptureCase{"concealedImage", {{u"image/png"_s, picture("png")}, secret}, {}},
        CaptureCase{"hintThatIsNoSecret",
                    {text("abc"), {u"x-kde-passwordManagerHint"_s, "public"}},
                    {u"abc"_s}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Clipboard, keepsTheEndsOfATextIfItIsTold) {
    manager->setTextEnds(TextEnds::kept);
    for (const char* copied : {" abc\n", "abc", " \n "}) {
        pasteboard.offer({text(copied)});
        settle();
    }
    EXPECT_EQ(texts(), QStringList({u"abc"_s, u" abc\n"_s})) << "blanks alone are no text";
    manager->setTextEnds(TextEnds::trimmed);
    pasteboard.offer({text(" def ")});
    settle();
    EXPECT_EQ(texts().first(), u"def"_s);
}

TEST_F(Clipboard, leavesWhatWasThereBeforeTheStart) {
    settle();
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(Clipboard, asksNothingOfAnOwnerThatConceals) {
    pasteboard.offer({text("pass"), {u"image/png"_s, picture("png")}, secret});
    settle();
    EXPECT_EQ(pasteboard.asked(), QStringList{secret.type}) << "only the mark itself was read";
}

TEST_F(Clipboard, looksEveryHalfSecondWhereNobodyTells) {
    pasteboard.tellsChanges = false;
    pasteboard.offerText(u"abc"_s);
    scheduler.advance(Seconds(0.49));
    EXPECT_EQ(texts(), QStringList());
    scheduler.advance(Seconds(0.02));
    EXPECT_EQ(texts(), QStringList{u"abc"_s});
}

TEST_F(Clipboard, keepsEveryCopyOfABurst) {
    QStringList expected;
    for (int i = 0; i < 20; ++i) {
        expected.prepend(QString::number(i));
        pasteboard.offerText(QString::number(i));
        scheduler.advance(Seconds(0.025));
    }
    EXPECT_EQ(texts(), expected);
}

TEST_F(Clipboard, anOwnerThatNeverAnswersCostsNothingButItself) {
    pasteboard.offerSilence();
    scheduler.advance(Seconds(0.01));
    pasteboard.offerText(u"next"_s);
    scheduler.advance(Seconds(0.01));
    EXPECT_EQ(texts(), QStringList{u"next"_s});
}

TEST_F(Clipboard, whatThePanelPutsThereMakesNoClip) {
    manager->copyText(u"ours"_s);
    settle();
    EXPECT_EQ(pasteboard.bytes(plainTextType), "ours");

    const QString path = folder.filePath(u"a.png"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(picture("png"));
    file.close();
    manager->copyImage(path);
    settle();
    EXPECT_EQ(pasteboard.bytes("image/png"_L1), picture("png"));

    manager->copyImage(path);
    manager->copyText(u"sooner"_s);
    settle();
    EXPECT_EQ(pasteboard.bytes(plainTextType), "sooner") << "an image that was asked for before";

    manager->copyFile(QUrl::fromLocalFile(path));
    settle();
    EXPECT_TRUE(pasteboard.bytes("text/uri-list"_L1).endsWith("/a.png\r\n"));

    const qint64 before = pasteboard.changeCount();
    manager->copyImage(folder.filePath(u"missing.png"_s));
    settle();
    manager->copyImage(folder.filePath(u"store.json"_s));
    settle();
    manager->copyFile(QUrl(u"https://example.org/a.png"_s));
    manager->copyFile(QUrl());
    settle();
    EXPECT_EQ(pasteboard.changeCount(), before) << "what is none leaves the pasteboard alone";
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(Clipboard, aStoredImageIsCopiedWithoutADecoder) {
    const QString path = folder.filePath(u"scan.png"_s);
    const QByteArray scan = picture("png").replace(16, 8, QByteArray(8, '\x7f')); // Its size.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(scan) > 0);
    file.close();
    manager->copyImage(path);
    settle();
    EXPECT_EQ(pasteboard.bytes("image/png"_L1), scan) << "too large to be decoded";
}

struct OvertakenCase {
    const char* name;
    std::function<void(Clipboard&)> copies; ///< While an image is still being read.
    const char* expected;                   ///< The text on the pasteboard at the end.
};

class OvertakenImage : public Clipboard, public testing::WithParamInterface<OvertakenCase> {};

TEST_P(OvertakenImage, givesWayToWhatWasCopiedAfterIt) {
    const QString path = folder.filePath(u"a.png"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(picture("png")) > 0);
    file.close();
    manager->copyImage(path);
    EXPECT_FALSE(pasteboard.bytes("image/png"_L1).startsWith("\x89PNG"))
        << "read on the main thread";
    GetParam().copies(*this);
    settle();
    EXPECT_EQ(pasteboard.bytes(plainTextType), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    By, OvertakenImage,
    testing::Values(
        OvertakenCase{"us", [](Clipboard& on) { on.manager->copyText(u"text"_s); }, "text"},
        OvertakenCase{"another", [](Clipboard& on) { on.pasteboard.offerText(u"theirs"_s); },
                      "theirs"}),
    [](const auto& row) { return row.param.name; });

struct FileCase {
    const char* name;
    QUrl url;
    QByteArray address;
    QByteArray path; ///< As text; null where it cannot be one.
};

class FileTable : public testing::TestWithParam<FileCase> {};

TEST_P(FileTable, isWhatFileManagersPaste) {
    const auto forms = byType(fileForms(GetParam().url));
    EXPECT_EQ(forms.value(u"text/uri-list"_s), GetParam().address + "\r\n");
    EXPECT_EQ(forms.value(u"x-special/gnome-copied-files"_s), "copy\n" + GetParam().address);
    EXPECT_EQ(forms.value(plainTextType), GetParam().path);
    EXPECT_EQ(forms.contains(plainTextType), !GetParam().path.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileTable,
    testing::Values(
        FileCase{"plain", QUrl::fromLocalFile(u"/tmp/a-b_c.~1"_s), "file:///tmp/a-b_c.~1",
                 "/tmp/a-b_c.~1"},
        FileCase{"reserved", QUrl::fromLocalFile(u"/tmp/a b%20[c]#?\"&;"_s),
                 "file:///tmp/a%20b%2520%5Bc%5D%23%3F%22%26%3B", "/tmp/a b%20[c]#?\"&;"},
        FileCase{"lineBreak", QUrl::fromLocalFile(u"/tmp/a\r\nb"_s), "file:///tmp/a%0D%0Ab",
                 "/tmp/a\r\nb"},
        FileCase{"umlaut", QUrl::fromLocalFile(u"/tmp/\u00fc"_s), "file:///tmp/%C3%BC",
                 "/tmp/\xc3\xbc"},
        FileCase{"noUtf8", QUrl::fromEncoded("file:///tmp/%fc%20"), "file:///tmp/%FC%20", {}}),
    [](const auto& row) { return row.param.name; });

struct LossCase {
    const char* name;
    QList<PasteboardEntry> offered;            ///< Captured, after "before".
    std::function<void(Clipboard&)> happens;   ///< Then.
    QList<PasteboardEntry> expected = offered; ///< On the pasteboard at the end.
    qsizetype clips = 2;
};

class LossTable : public Clipboard, public testing::WithParamInterface<LossCase> {};

TEST_P(LossTable, offersAgainOnlyWhatWentWithItsOwner) {
    pasteboard.offerText(u"before"_s);
    settle();
    pasteboard.offer(GetParam().offered);
    settle();
    GetParam().happens(*this);
    settle();
    EXPECT_EQ(byType(pasteboard.contents()), byType(GetParam().expected));
    EXPECT_EQ(store.clips().size(), GetParam().clips);
}

/// Offered after "abc" was captured, and then lost.
std::function<void(Clipboard&)> losing(const QList<PasteboardEntry>& offered) {
    return [offered](Clipboard& on) {
        on.pasteboard.offer(offered);
        on.settle();
        lose(on);
    };
}

INSTANTIATE_TEST_SUITE_P(
    Ends, LossTable,
    testing::Values(LossCase{"text", abc, lose}, LossCase{"link", {text("https://a.org/")}, lose},
                    LossCase{"image", png, lose},
                    LossCase{"asCaptured", {text(" abc\n")}, lose, abc},
                    LossCase{"sameTextOfAnother", abc, losing(abc), abc},
                    LossCase{"pinned", abc,
                             [](Clipboard& on) {
                                 on.store.togglePin(on.store.clips().at(0).id);
                                 lose(on);
                             }},
                    LossCase{"whereNobodyTells", abc,
                             [](Clipboard& on) {
                                 on.pasteboard.tellsChanges = false;
                                 lose(on);
                             }},
                    LossCase{"whileTheImageIsWritten", abc,
                             [](Clipboard& on) {
                                 on.pasteboard.offer(png);
                                 on.scheduler.advance(Seconds(0.1));
                                 lose(on);
                             },
                             png, 3},
                    LossCase{"beforeItWasRead",
                             abc,
                             [](Clipboard& on) {
                                 on.pasteboard.offerText(u"too quick"_s);
                                 lose(on);
                             },
                             {}},
                    LossCase{"neverRead",
                             abc,
                             [](Clipboard& on) {
                                 on.pasteboard.offerSilence();
                                 on.settle();
                                 lose(on);
                             },
                             {}},
                    LossCase{"blank", abc, losing({text(" ")}), {}},
                    LossCase{"concealed", abc, losing({text("pass"), secret}), {}},
                    LossCase{"clearedByAManager", abc, losing({text(""), secret}), {}},
                    LossCase{"namedAsTheImageIs", png, losing({text("Image")}), {}},
                    LossCase{"passedOnFirst", png,
                             [](Clipboard& on) {
                                 on.pasteboard.owner = {2};
                                 losing(png)(on);
                             }},
                    LossCase{"givenUp", abc, [](Clipboard& on) { on.pasteboard.release(); }, {}},
                    LossCase{"perhapsGivenUp",
                             abc,
                             [](Clipboard& on) {
                                 on.pasteboard.knowsDeaths = false;
                                 lose(on);
                             },
                             {}},
                    LossCase{"takenOver",
                             abc,
                             [](Clipboard& on) {
                                 on.pasteboard.tellsChanges = false;
                                 lose(on);
                                 on.pasteboard.offer({text("kept by the desktop")});
                             },
                             {text("kept by the desktop")},
                             3},
                    LossCase{"deleted",
                             abc,
                             [](Clipboard& on) {
                                 on.store.deleteClip(on.store.clips().at(0).id);
                                 lose(on);
                             },
                             {},
                             1},
                    LossCase{"clearedThoughPinned",
                             abc,
                             [](Clipboard& on) {
                                 on.store.togglePin(on.store.clips().at(0).id);
                                 on.store.clearClips();
                                 lose(on);
                             },
                             {},
                             1}),
    [](const auto& row) { return row.param.name; });

TEST_F(Clipboard, theOrderOfCopyingIsKeptThoughImagesTakeLonger) {
    pasteboard.offer({{u"image/bmp"_s, picture("bmp")}});
    scheduler.advance(Seconds(0.1));
    pasteboard.offerText(u"after"_s);
    scheduler.advance(Seconds(0.1));
    EXPECT_EQ(texts(), QStringList());
    worker.drain();
    EXPECT_EQ(texts(), QStringList({u"after"_s, u"Image"_s}));
}

} // namespace
} // namespace ravelo
