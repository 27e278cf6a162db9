#include "clipboard/ClipboardManager.h"

#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPasteboard.h"
#include "fakes/MemoryPreferences.h"
#include "store/Store.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QByteArray picture(const char* format) {
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

PasteboardEntry text(const char* utf8) {
    return {plainTextType, utf8};
}

class Clipboard : public testing::Test {
protected:
    Clipboard() {
        pasteboard.offerText(u"there before the start"_s);
        manager.emplace(store, pasteboard, scheduler);
        manager->start();
    }

    void settle() {
        scheduler.advance(Seconds(0.6));
        worker.drain();
    }

    QStringList texts() const {
        QStringList list;
        for (const ClipItem& clip : store.clips()) {
            list.append(clip.text);
        }
        return list;
    }

    QTemporaryDir folder;
    ManualScheduler scheduler;
    ManualWorker worker;
    MemoryPreferences preferences;
    MemoryPasteboard pasteboard{scheduler};
    Store store{folder.path(), {scheduler, worker, preferences, pasteboard}};
    std::optional<ClipboardManager> manager;
};

struct CaptureCase {
    const char* name;
    QList<PasteboardEntry> offered;
    QStringList expected; ///< Texts of the clips.
};

class CaptureTable : public Clipboard, public testing::WithParamInterface<CaptureCase> {};

TEST_P(CaptureTable, keepsWhatTheOwnerMeansToBeKept) {
    pasteboard.offer(GetParam().offered);
    settle();
    EXPECT_EQ(texts(), GetParam().expected);
}

const PasteboardEntry secret{u"x-kde-passwordManagerHint"_s, "secret"};

INSTANTIATE_TEST_SUITE_P(
    Contents, CaptureTable,
    testing::Values(
        CaptureCase{"text", {text("abc")}, {u"abc"_s}},
        CaptureCase{"trimmed", {text(" \n\tabc\u00a0\r\n")}, {u"abc"_s}},
        CaptureCase{"blank", {text(" \n ")}, {}},
        CaptureCase{"textBeforeImage", {{u"image/png"_s, picture("png")}, text("abc")}, {u"abc"_s}},
        CaptureCase{
            "blankTextThenImage", {text("  "), {u"image/png"_s, picture("png")}}, {u"Image"_s}},
        CaptureCase{"png", {{u"image/png"_s, picture("png")}}, {u"Image"_s}},
        CaptureCase{"bmp", {{u"image/bmp"_s, picture("bmp")}}, {u"Image"_s}},
        CaptureCase{"brokenTiffThenBmp",
                    {{u"image/tiff"_s, "II*"}, {u"image/bmp"_s, picture("bmp")}},
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

    const qint64 before = pasteboard.changeCount();
    manager->copyImage(folder.filePath(u"missing.png"_s));
    manager->copyImage(folder.filePath(u"store.json"_s));
    EXPECT_EQ(pasteboard.changeCount(), before) << "what is no image leaves the pasteboard alone";
    EXPECT_EQ(texts(), QStringList());
}

TEST_F(Clipboard, theOrderOfCopyingIsKeptThoughImagesTakeLonger) {
    ManualWorker slow(ManualWorker::Mode::whenTold);
    QTemporaryDir other;
    Store slowStore(other.path(), {scheduler, slow, preferences, pasteboard});
    ClipboardManager watcher(slowStore, pasteboard, scheduler);
    watcher.start();
    pasteboard.offer({{u"image/bmp"_s, picture("bmp")}});
    scheduler.advance(Seconds(0.1));
    pasteboard.offerText(u"after"_s);
    scheduler.advance(Seconds(0.1));
    slow.drain();
    ASSERT_EQ(slowStore.clips().size(), 2);
    EXPECT_EQ(slowStore.clips().at(0).text, u"after"_s);
    EXPECT_EQ(slowStore.clips().at(1).kind, ClipKind::image);
}

} // namespace
} // namespace ravelo
