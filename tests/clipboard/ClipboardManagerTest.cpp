#include "ClipboardFixture.h"
#include "clipboard/FileForms.h"

#include <QFile>
#include <QUrl>

#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(Capture, keepsWhatTheOwnerAllows) {
    struct Case {
        const char* name;
        QList<PasteboardEntry> offered;
        QStringList expected; ///< Texts of the clips.
    };

    const Case cases[] = {
        {"text", {text("abc")}, {u"abc"_s}},
        {"trimmed", {text(" \n\tabc\u00a0\r\n")}, {u"abc"_s}},
        {"blank", {text(" \n ")}, {}},
        {"textBeforeImage", {{u"image/png"_s, picture("png")}, text("abc")}, {u"abc"_s}},
        {"blankTextThenImage", {text("  "), {u"image/png"_s, picture("png")}}, {u"Image"_s}},
        {"filesInALine",
         {text("/tmp/a b /tmp/c /d"),
          {u"text/uri-list"_s, "file:///tmp/a%20b\r\nfile:///tmp/c\r\nfile:///d\r\n"}},
         {u"/tmp/a b\n/tmp/c\n/d"_s}},
        {"otherFilesThanInTheLine",
         {text("/tmp/a /tmp/c"), {u"text/uri-list"_s, "file:///tmp/a\r\n"}},
         {u"/tmp/a /tmp/c"_s}},
        {"png", png, {u"Image"_s}},
        {"bmp", {{u"image/bmp"_s, picture("bmp")}}, {u"Image"_s}},
        {"brokenTiffThenBmp",
         {{u"image/tiff"_s, "II*"}, {u"image/bmp"_s, picture("bmp")}},
         {u"Image"_s}},
        {"onlyTheBeginningOfAWebpThenBmp",
         {{u"image/webp"_s, QByteArray("RIFF\0\0\0\0WEBP", 12)}, {u"image/bmp"_s, picture("bmp")}},
         {u"Image"_s}},
        {"noImageAtAll", {{u"image/tiff"_s, "II*"}}, {}},
        {"concealedText", {text("pass"), {u"org.nspasteboard.ConcealedType"_s, ""}}, {}},
        {"passwordHint", {text("pass"), secret}, {}},
        {"clearedByAManager", {text(""), secret}, {}},
        {"concealedImage", {{u"image/png"_s, picture("png")}, secret}, {}},
        {"hintThatIsNoSecret",
         {text("abc"), {u"x-kde-passwordManagerHint"_s, "public"}},
         {u"abc"_s}}};
    for (const Case& c : cases) {
        ClipboardWorld world;
        world.pasteboard.offer(c.offered);
        world.settle();
        world.settle(); // Another form may have to be asked for.
        EXPECT_EQ(world.texts(), c.expected) << c.name;
    }
}

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

TEST_F(Clipboard, asksForNoOtherFormOfAnImageThatCannotBeWritten) {
    ASSERT_TRUE(QDir(store.clipsDir()).removeRecursively());
    makeFile(store.clipsDir(), "in the way");
    pasteboard.offer({{u"image/tiff"_s, picture("tiff")}, {u"image/bmp"_s, picture("bmp")}});
    settle();
    settle();
    EXPECT_EQ(pasteboard.asked(), QStringList{u"image/tiff"_s});
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(Clipboard, ignoresWhatWasCopiedBeforeTheStart) {
    settle();
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(Clipboard, readsNothingConcealed) {
    pasteboard.offer({text("pass"), {u"image/png"_s, picture("png")}, secret});
    settle();
    EXPECT_EQ(pasteboard.asked(), QStringList{secret.type}) << "only the mark itself was read";
}

TEST(ReportedChanges, makePollingUnnecessary) {
    ClipboardWorld reporting(true);
    ClipboardWorld polling;
    for (ClipboardWorld* world : {&reporting, &polling}) {
        world->settle();
    }
    EXPECT_LT(reporting.scheduler.pending(), polling.scheduler.pending()) << "it polls, too";
    const Happening happenings[] = {by(one, abc),
                                    by(other, abc),
                                    by(one, png),
                                    by(other, {text("x")}),
                                    by({3, PasteboardOwner::Kind::manager}, png),
                                    lose,
                                    later(0.2),
                                    later(3),
                                    deleteNewest,
                                    pinNewest,
                                    [](ClipboardWorld& on) { on.pasteboard.release(); },
                                    clearAll};
    std::mt19937 random(20261126);
    for (int step = 0; step < 120; ++step) {
        const Happening& happening = happenings[random() % std::size(happenings)];
        for (ClipboardWorld* world : {&reporting, &polling}) {
            if (!world->store.clips().isEmpty()) {
                happening(*world);
            } else {
                by(one, abc)(*world);
            }
            world->settle();
        }
        ASSERT_EQ(reporting.texts(), polling.texts()) << "after step " << step;
        ASSERT_EQ(byType(reporting.pasteboard.contents()), byType(polling.pasteboard.contents()))
            << "after step " << step;
    }
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

TEST_F(Clipboard, anOwnerThatNeverAnswersDelaysNothing) {
    pasteboard.offerSilence();
    scheduler.advance(Seconds(0.01));
    pasteboard.offerText(u"next"_s);
    scheduler.advance(Seconds(0.01));
    EXPECT_EQ(texts(), QStringList{u"next"_s});
}

TEST_F(Clipboard, ourOwnCopiesMakeNoClip) {
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

TEST_F(Clipboard, aLaterCopyReplacesAnImage) {
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

void fallSilent(ClipboardWorld& on) {
    on.pasteboard.offerSilence();
    on.settle();
}

void clearPasteboard(ClipboardWorld& on) {
    on.pasteboard.release();
}

void confuseEndAndClearing(ClipboardWorld& on) {
    on.pasteboard.orphansAre = Pasteboard::Orphans::orCleared;
}

const QList<PasteboardEntry> words = {text("two words")};
const QList<PasteboardEntry> longWord = {text(QByteArray(128, 'a').constData())};
const QList<PasteboardEntry> longPassword = {text(QByteArray(127, 'a').constData())};
const QList<PasteboardEntry> kept = {text("kept by the desktop")};

TEST(Loss, offersAgainOnlyWhatItsOwnerTookAlong) {
    struct Case {
        const char* name;
        QList<PasteboardEntry> offered;            ///< Captured, after "before".
        QList<Happening> happens;                  ///< Then.
        QList<PasteboardEntry> expected = offered; ///< On the pasteboard at the end.
        qsizetype clips = 2;
    };

    const Case cases[] = {
        {"text", abc, {lose}},
        {"link", {text("https://a.org/")}, {lose}},
        {"image", png, {lose}},
        {"asCaptured", {text(" abc\n")}, {lose}, abc},
        {"sameTextOfAnother", abc, {by(one, abc), lose}},
        {"pinned", abc, {pinNewest, lose}},
        {"changesNotReported", abc, {loseUnseen}},
        {"whileTheImageIsWritten", abc, {offering(png), later(0.1), lose}, png, 3},
        {"beforeItWasRead", abc, {offering({text("too quick")}), lose}, {}},
        {"neverRead", abc, {fallSilent, lose}, {}},
        {"blank", abc, {by(one, {text(" ")}), lose}, {}},
        {"concealed", abc, {by(one, {text("pass"), secret}), lose}, {}},
        {"clearedByAManager", abc, {by(one, {text(""), secret}), lose}, {}},
        {"namedAsTheImageIs", png, {by(one, {text("Image")}), lose}, {}},
        {"passedOnFirst", png, {by(other, png), lose}},
        {"cleared", abc, {clearPasteboard}, {}},
        {"perhapsAClearedPassword", abc, {confuseEndAndClearing, clearPasteboard}, {}},
        {"perhapsALongOne", longPassword, {confuseEndAndClearing, lose}, {}},
        {"noPassword", words, {confuseEndAndClearing, lose}},
        {"noPasswordIsSoLong", longWord, {confuseEndAndClearing, lose}},
        {"imageIsNoPassword", png, {confuseEndAndClearing, lose}},
        {"takenOver", abc, {loseUnseen, offering(kept)}, kept, 3},
        {"deleted", abc, {deleteNewest, lose}, {}, 1},
        {"clearedThoughPinned", abc, {pinNewest, clearAll, lose}, {}, 1}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ClipboardWorld world;
        offering({text("before")})(world);
        world.settle();
        offering(c.offered)(world);
        world.settle();
        for (const Happening& happening : c.happens) {
            happening(world);
        }
        world.settle();
        EXPECT_EQ(byType(world.pasteboard.contents()), byType(c.expected));
        EXPECT_EQ(world.store.clips().size(), c.clips);
    }
}

} // namespace
} // namespace ravelo
