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

TEST_P(CaptureTable, keepsWhatTheOwnerAllows) {
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
        CaptureCase{"png", png, {u"Image"_s}},
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

TEST_F(Clipboard, keepsTheEndsOfATextIfSet) {
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

TEST_F(Clipboard, pollsIfChangesAreNotReported) {
    pasteboard.notifies = false;
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

    const QString path = imageFile();
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
    const QByteArray scan = picture("png").replace(16, 8, QByteArray(8, '\x7f')); // Its size.
    manager->copyImage(imageFile(scan));
    settle();
    EXPECT_EQ(pasteboard.bytes("image/png"_L1), scan) << "too large to be decoded";
}

TEST_F(Clipboard, anImageGivesWayToWhatWasCopiedAfterIt) {
    const QString path = imageFile();
    for (const bool byUs : {true, false}) {
        pasteboard.offerText(u"before"_s);
        settle();
        manager->copyImage(path);
        EXPECT_EQ(pasteboard.bytes(plainTextType), "before") << "read on the main thread";
        byUs ? manager->copyText(u"text"_s) : pasteboard.offerText(u"text"_s);
        settle();
        EXPECT_EQ(pasteboard.bytes(plainTextType), "text") << (byUs ? "by us" : "by another");
    }
}

TEST(FileForms, areWhatFileManagersPaste) {
    struct Row {
        QUrl url;
        QByteArray address;
        QByteArray path; ///< As text; null if it cannot be one.
    };

    const Row table[] = {
        {QUrl::fromLocalFile(u"/tmp/a-b_c.~1"_s), "file:///tmp/a-b_c.~1", "/tmp/a-b_c.~1"},
        {QUrl::fromLocalFile(u"/tmp/a b%20[c]#?\"&;"_s),
         "file:///tmp/a%20b%2520%5Bc%5D%23%3F%22%26%3B", "/tmp/a b%20[c]#?\"&;"},
        {QUrl::fromLocalFile(u"/tmp/a\r\nb"_s), "file:///tmp/a%0D%0Ab", "/tmp/a\r\nb"},
        {QUrl::fromLocalFile(u"/tmp/\u00fc"_s), "file:///tmp/%C3%BC", "/tmp/\xc3\xbc"},
        {QUrl::fromEncoded("file:///tmp/%fc%20"), "file:///tmp/%FC%20", {}},
    };
    for (const auto& [url, address, path] : table) {
        QHash<QString, QByteArray> expected{
            {u"text/uri-list"_s, address + "\r\n"},
            {u"x-special/gnome-copied-files"_s, "copy\n" + address}};
        if (!path.isNull()) {
            expected.insert(plainTextType, path);
        }
        EXPECT_EQ(byType(fileForms(url)), expected) << address.constData();
    }
}

struct LossCase {
    const char* name;
    QList<PasteboardEntry> offered;            ///< Captured, after "before".
    QList<Happening> happens;                  ///< Then.
    QList<PasteboardEntry> expected = offered; ///< On the pasteboard at the end.
    qsizetype clips = 2;
};

class LossTable : public Clipboard, public testing::WithParamInterface<LossCase> {};

TEST_P(LossTable, offersAgainOnlyWhatWentWithItsOwner) {
    pasteboard.offerText(u"before"_s);
    settle();
    pasteboard.offer(GetParam().offered);
    settle();
    for (const Happening& happening : GetParam().happens) {
        happening(*this);
    }
    settle();
    EXPECT_EQ(byType(pasteboard.contents()), byType(GetParam().expected));
    EXPECT_EQ(store.clips().size(), GetParam().clips);
}

void fallSilent(Clipboard& on) {
    on.pasteboard.offerSilence();
    on.settle();
}

void clearPasteboard(Clipboard& on) {
    on.pasteboard.release();
}

void confuseEndAndClearing(Clipboard& on) {
    on.pasteboard.orphansAre = Pasteboard::Orphans::orCleared;
}

const QList<PasteboardEntry> words = {text("two words")};
const QList<PasteboardEntry> longWord = {text(QByteArray(128, 'a').constData())};
const QList<PasteboardEntry> longPassword = {text(QByteArray(127, 'a').constData())};
const QList<PasteboardEntry> kept = {text("kept by the desktop")};

INSTANTIATE_TEST_SUITE_P(
    Ends, LossTable,
    testing::Values(
        LossCase{"text", abc, {lose}}, LossCase{"link", {text("https://a.org/")}, {lose}},
        LossCase{"image", png, {lose}}, LossCase{"asCaptured", {text(" abc\n")}, {lose}, abc},
        LossCase{"sameTextOfAnother", abc, {by(one, abc), lose}},
        LossCase{"pinned", abc, {pinNewest, lose}},
        LossCase{"changesNotReported", abc, {loseUnseen}},
        LossCase{"whileTheImageIsWritten", abc, {offering(png), later(0.1), lose}, png, 3},
        LossCase{"beforeItWasRead", abc, {offering({text("too quick")}), lose}, {}},
        LossCase{"neverRead", abc, {fallSilent, lose}, {}},
        LossCase{"blank", abc, {by(one, {text(" ")}), lose}, {}},
        LossCase{"concealed", abc, {by(one, {text("pass"), secret}), lose}, {}},
        LossCase{"clearedByAManager", abc, {by(one, {text(""), secret}), lose}, {}},
        LossCase{"namedAsTheImageIs", png, {by(one, {text("Image")}), lose}, {}},
        LossCase{"passedOnFirst", png, {by(other, png), lose}},
        LossCase{"cleared", abc, {clearPasteboard}, {}},
        LossCase{"perhapsAClearedPassword", abc, {confuseEndAndClearing, clearPasteboard}, {}},
        LossCase{"perhapsALongOne", longPassword, {confuseEndAndClearing, lose}, {}},
        LossCase{"noPassword", words, {confuseEndAndClearing, lose}},
        LossCase{"noPasswordIsSoLong", longWord, {confuseEndAndClearing, lose}},
        LossCase{"imageIsNoPassword", png, {confuseEndAndClearing, lose}},
        LossCase{"takenOver", abc, {loseUnseen, offering(kept)}, kept, 3},
        LossCase{"deleted", abc, {deleteNewest, lose}, {}, 1},
        LossCase{"clearedThoughPinned", abc, {pinNewest, clearAll, lose}, {}, 1}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ravelo
