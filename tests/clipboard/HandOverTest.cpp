#include "ClipboardFixture.h"

#include <QUrl>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const PasteboardOwner passer{3, PasteboardOwner::Kind::manager};
const QStringList once{u"Image"_s};
const QStringList twice{u"Image"_s, u"Image"_s};

TEST(Repeat, isANewCopyUnlessPassedOn) {
    struct Case {
        const char* name;
        QList<Happening> happens;
        QStringList expected; ///< Texts of the clips.
    };

    const Case cases[] = {
        {"byAnotherAtOnce", {by(one, png), later(1), by(other, png)}, once},
        {"byAThirdAtOnce", {by(one, png), by(other, png), by(one, png)}, once},
        {"byAnotherLater", {by(one, png), later(2.5), by(other, png)}, twice},
        {"byTheSameProgram", {by(one, png), by(one, png)}, twice},
        {"afterSomethingElse",
         {by(one, png), by(one, abc), by(other, png)},
         {u"Image"_s, u"abc"_s, u"Image"_s}},
        {"atTheEnd", {by(one, png), later(60), lose, later(1), by(other, png)}, once},
        {"atTheEndUnseen", {by(one, png), later(60), loseUnseen, by(other, png)}, once},
        {"longAfterTheEnd", {by(one, png), later(60), lose, later(2.5), by(other, png)}, twice},
        {"byAManager", {by(one, png), later(60), by(passer, png)}, once},
        {"somethingElseByAManager", {by(one, png), by(passer, abc)}, {u"abc"_s, u"Image"_s}},
        {"aConcealedOneByAManager",
         {by(one, {text("pass"), secret}), by(passer, {text("pass")})},
         {}},
        {"aConcealedOneAfterItsEnd",
         {by(one, {text("pass"), secret}), lose, by(passer, {text("pass")})},
         {}},
        {"aConcealedOneThenAnother",
         {by(one, {text("pass"), secret}), by(one, abc), by(passer, {text("def")})},
         {u"def"_s, u"abc"_s}},
        {"deleted", {by(one, abc), deleteNewest, by(other, abc)}, {u"abc"_s}},
        {"cleared", {by(one, abc), clearAll, by(other, abc)}, {u"abc"_s}},
        {"deletedThenAtTheEnd", {by(one, abc), later(60), deleteNewest, lose, by(other, abc)}, {}},
        {"pinnedThenAtTheEnd",
         {by(one, abc), later(60), pinNewest, lose, by(other, abc)},
         {u"abc"_s}},
        {"ofWhatWePutThere",
         {by(one, abc), by(one, {text("def")}),
          [](ClipboardWorld& on) { on.manager->copyText(u"abc"_s); }, by(other, abc)},
         {u"def"_s, u"abc"_s}},
        {"whileTheImageIsWritten", {offering(png), later(0.1), by(other, png)}, once}};
    for (const Case& c : cases) {
        ClipboardWorld world;
        for (const Happening& happening : c.happens) {
            happening(world);
        }
        EXPECT_EQ(world.texts(), c.expected) << c.name;
    }
}

TEST_F(Clipboard, anImageReadFromAFileIsNotOfferedAgain) {
    const QString path = imageFile();
    pasteboard.offer({{u"text/uri-list"_s, QUrl::fromLocalFile(path).toEncoded()}});
    settle();
    EXPECT_EQ(texts(), once);
    pasteboard.askToSave();
    EXPECT_EQ(pasteboard.saveAnswer(), SaveAnswer::refused);
    lose(*this);
    settle();
    EXPECT_TRUE(pasteboard.contents().isEmpty());
}

constexpr QSize wide(8192, 4097); ///< More pixels than are kept.

const QList<PasteboardEntry> widePng{{u"image/png"_s, emptyPicture("PNG", wide)}};

TEST(SaveRequest, keepsAnEndingProgramWaitingUntilItsCopyIsRead) {
    struct Case {
        const char* name;
        QList<PasteboardEntry> offered;
        SaveAnswer expected;
        QList<PasteboardEntry> left; ///< On the pasteboard after the owner's end.
    };

    const Case cases[] = {
        {"text", abc, SaveAnswer::saved, abc},
        {"image", png, SaveAnswer::saved, png},
        {"tooManyPixels", widePng, SaveAnswer::refused, {}},
        {"noPicture", {{u"image/bmp"_s, picture("bmp").first(20)}}, SaveAnswer::refused, {}},
        {"blank", {text(" ")}, SaveAnswer::refused, {}},
        {"unknown", {{u"x/y"_s, "z"}}, SaveAnswer::refused, {}},
        {"concealed", {text("pass"), secret}, SaveAnswer::refused, {}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ClipboardWorld world;
        MemoryPasteboard& pasteboard = world.pasteboard;
        pasteboard.offer(c.offered);
        pasteboard.askToSave();
        EXPECT_EQ(pasteboard.saveAnswer(), std::nullopt) << "answered before it was read";
        world.scheduler.advance(Seconds(0.01));
        if (c.offered.front().type.startsWith("image/"_L1)) {
            EXPECT_EQ(pasteboard.saveAnswer(), std::nullopt) << "answered before it was written";
            world.worker.drain();
        }
        EXPECT_EQ(pasteboard.saveAnswer(), c.expected);
        pasteboard.askToSave();
        EXPECT_EQ(pasteboard.saveAnswer(), c.expected) << "asked again";
        lose(world);
        world.settle();
        EXPECT_EQ(byType(pasteboard.contents()), byType(c.left));
    }
}

TEST_F(Clipboard, aCopyDuringACheckIsReadOnce) {
    pasteboard.owner = other;
    pasteboard.meanwhile = [this] {
        pasteboard.notifies = false; // Such a notice never comes from within a call.
        pasteboard.offer(png);
    };
    pasteboard.offerText(u"before"_s); // Seen, and replaced before its reading begins.
    settle();
    EXPECT_EQ(texts(), once);
}

TEST_F(Clipboard, aCopyDuringAWriteIsKept) {
    pasteboard.meanwhile = [this] {
        pasteboard.notifies = false;
        pasteboard.offerText(u"theirs"_s);
    };
    manager->copyText(u"ours"_s);
    settle();
    EXPECT_EQ(texts(), QStringList{u"theirs"_s});
}

using Reports = QList<std::pair<TooLarge::Kind, qint64>>;

/// What the manager reports as too large, from now on.
std::shared_ptr<Reports> reportsOf(ClipboardWorld& world) {
    const auto reports = std::make_shared<Reports>();
    QObject::connect(&*world.manager, &ClipboardManager::tooLarge, [reports](const TooLarge& what) {
        reports->append({what.kind, what.amount});
    });
    return reports;
}

const PasteboardEntry refusedPng{u"image/png"_s, {}};
const PasteboardEntry refusedText{plainTextType, {}};
const QHash<QString, qint64> largeText{{plainTextType, 9'000'000}};
const QHash<QString, qint64> largePng{{u"image/png"_s, 70'000'000}};

TEST(TooLargeCopy, isReportedOnce) {
    using Kind = TooLarge::Kind;

    struct Case {
        const char* name;
        QList<PasteboardEntry> offered;
        QHash<QString, qint64> tooLarge;
        Reports reports;
        qsizetype clips = 0;
    };

    const Case cases[] = {
        {"text", {refusedText}, largeText, {{Kind::text, 9'000'000}}},
        {"image", {refusedPng}, largePng, {{Kind::image, 70'000'000}}},
        {"pixels",
         {{u"image/bmp"_s, emptyPicture("BMP", wide)}},
         {},
         {{Kind::pixels, 8192 * 4097}}},
        {"pixels of a PNG", widePng, {}, {{Kind::pixels, 8192 * 4097}}},
        {"another form", {refusedPng, {u"image/bmp"_s, picture("bmp")}}, largePng, {}, 1},
        {"an image instead", {refusedText, png.front()}, largeText, {}, 1},
        {"refused", {refusedText, refusedPng}, {}, {}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ClipboardWorld world;
        const auto reports = reportsOf(world);
        world.pasteboard.tooLarge = c.tooLarge;
        by(one, c.offered)(world);
        by(other, c.offered)(world); // Passed on.
        EXPECT_EQ(*reports, c.reports);
        EXPECT_EQ(world.store.clips().size(), c.clips);
    }
}

constexpr qint64 overLimit = (64 << 20) + 1;

TEST(TooLargeCopy, isReportedOnceForAFileToo) {
    struct Case {
        const char* name;
        QByteArray contents;
        qint64 length;
        Reports reports;
    };

    const Case cases[] = {
        {"bytes", picture("png"), overLimit, {{TooLarge::Kind::image, overLimit}}},
        {"pixels",
         emptyPicture("BMP", wide),
         emptyPicture("BMP", wide).size(),
         {{TooLarge::Kind::pixels, 8192 * 4097}}},
        {"no picture", "text", overLimit, {}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ClipboardWorld world;
        const auto reports = reportsOf(world);
        const QString path = world.imageFile(c.contents);
        ASSERT_TRUE(QFile::resize(path, c.length));
        const QByteArray list = QUrl::fromLocalFile(path).toEncoded();
        for (const PasteboardOwner& owner : {one, other}) { // The other passes it on.
            by(owner, {{filesType, list}})(world);
            world.settle(); // A file is read before the worker gets it.
        }
        EXPECT_EQ(*reports, c.reports);
        // Any other file is kept as its path.
        EXPECT_EQ(world.texts(), c.reports.isEmpty() ? QStringList{path} : QStringList());
    }
}

} // namespace
} // namespace ravelo
