#include "ClipboardFixture.h"

#include <QFile>
#include <QUrl>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct RepeatCase {
    const char* name;
    QList<Happening> happens;
    QStringList expected; ///< Texts of the clips.
};

class RepeatTable : public Clipboard, public testing::WithParamInterface<RepeatCase> {};

TEST_P(RepeatTable, isACopyUnlessPassedOn) {
    for (const Happening& happening : GetParam().happens) {
        happening(*this);
    }
    EXPECT_EQ(texts(), GetParam().expected);
}

const PasteboardOwner passer{3, PasteboardOwner::Kind::manager};
const QStringList once{u"Image"_s};
const QStringList twice{u"Image"_s, u"Image"_s};

INSTANTIATE_TEST_SUITE_P(
    Repeats, RepeatTable,
    testing::Values(
        RepeatCase{"byAnotherAtOnce", {by(one, png), later(1), by(other, png)}, once},
        RepeatCase{"byAThirdAtOnce", {by(one, png), by(other, png), by(one, png)}, once},
        RepeatCase{"byAnotherLater", {by(one, png), later(2.5), by(other, png)}, twice},
        RepeatCase{"byTheSameProgram", {by(one, png), by(one, png)}, twice},
        RepeatCase{"afterSomethingElse",
                   {by(one, png), by(one, abc), by(other, png)},
                   {u"Image"_s, u"abc"_s, u"Image"_s}},
        RepeatCase{"atTheEnd", {by(one, png), later(60), lose, later(1), by(other, png)}, once},
        RepeatCase{"atTheEndUnseen", {by(one, png), later(60), loseUnseen, by(other, png)}, once},
        RepeatCase{
            "longAfterTheEnd", {by(one, png), later(60), lose, later(2.5), by(other, png)}, twice},
        RepeatCase{"byAManager", {by(one, png), later(60), by(passer, png)}, once},
        RepeatCase{
            "somethingElseByAManager", {by(one, png), by(passer, abc)}, {u"abc"_s, u"Image"_s}},
        RepeatCase{"deleted", {by(one, abc), deleteNewest, by(other, abc)}, {u"abc"_s}},
        RepeatCase{"cleared", {by(one, abc), clearAll, by(other, abc)}, {u"abc"_s}},
        RepeatCase{"deletedThenAtTheEnd",
                   {by(one, abc), later(60), deleteNewest, lose, by(other, abc)},
                   {}},
        RepeatCase{"pinnedThenAtTheEnd",
                   {by(one, abc), later(60), pinNewest, lose, by(other, abc)},
                   {u"abc"_s}},
        RepeatCase{"ofWhatWePutThere",
                   {by(one, abc), by(one, {text("def")}),
                    [](Clipboard& on) { on.manager->copyText(u"abc"_s); }, by(other, abc)},
                   {u"def"_s, u"abc"_s}},
        RepeatCase{"whileTheImageIsWritten", {offering(png), later(0.1), by(other, png)}, once}),
    [](const auto& row) { return row.param.name; });

TEST_F(Clipboard, anImageReadFromAFileIsNotOfferedInOurName) {
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

/// 33 million pixels, black.
QByteArray widePicture(const char* format) {
    QImage image(8192, 4097, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

const QList<PasteboardEntry> widePng{{u"image/png"_s, widePicture("PNG")}};

struct SaveCase {
    const char* name;
    QList<PasteboardEntry> offered;
    SaveAnswer expected;
    QList<PasteboardEntry> left; ///< On the pasteboard after the owner's end.
};

class SaveTable : public Clipboard, public testing::WithParamInterface<SaveCase> {};

TEST_P(SaveTable, keepsAnEndingProgramWaitingUntilItsCopyIsRead) {
    pasteboard.offer(GetParam().offered);
    pasteboard.askToSave();
    EXPECT_EQ(pasteboard.saveAnswer(), std::nullopt) << "answered before it was read";
    scheduler.advance(Seconds(0.01));
    if (GetParam().offered.front().type.startsWith("image/"_L1)) {
        EXPECT_EQ(pasteboard.saveAnswer(), std::nullopt) << "answered before it was written";
        worker.drain();
    }
    EXPECT_EQ(pasteboard.saveAnswer(), GetParam().expected);
    pasteboard.askToSave();
    EXPECT_EQ(pasteboard.saveAnswer(), GetParam().expected) << "asked again";
    lose(*this);
    settle();
    EXPECT_EQ(byType(pasteboard.contents()), byType(GetParam().left));
}

INSTANTIATE_TEST_SUITE_P(
    Contents, SaveTable,
    testing::Values(SaveCase{"text", abc, SaveAnswer::saved, abc},
                    SaveCase{"image", png, SaveAnswer::saved, png},
                    SaveCase{"tooManyPixels", widePng, SaveAnswer::refused, {}},
                    SaveCase{"noPicture",
                             {{u"image/bmp"_s, picture("bmp").first(20)}},
                             SaveAnswer::refused,
                             {}},
                    SaveCase{"blank", {text(" ")}, SaveAnswer::refused, {}},
                    SaveCase{"unknown", {{u"x/y"_s, "z"}}, SaveAnswer::refused, {}},
                    SaveCase{"concealed", {text("pass"), secret}, SaveAnswer::refused, {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Clipboard, aCopyThatComesWhileWeLookIsReadOnce) {
    pasteboard.owner = other;
    pasteboard.meanwhile = [this] {
        pasteboard.notifies = false; // Such a notice never comes from within a call.
        pasteboard.offer(png);
    };
    pasteboard.offerText(u"before"_s); // Seen, and replaced before its reading begins.
    settle();
    EXPECT_EQ(texts(), once);
}

TEST_F(Clipboard, aCopyThatComesWhileWeWriteIsKept) {
    pasteboard.meanwhile = [this] {
        pasteboard.notifies = false;
        pasteboard.offerText(u"theirs"_s);
    };
    manager->copyText(u"ours"_s);
    settle();
    EXPECT_EQ(texts(), QStringList{u"theirs"_s});
}

struct TooLargeCase {
    const char* name;
    QList<PasteboardEntry> offered;
    QHash<QString, qint64> tooLarge;
    std::optional<std::pair<TooLarge::Kind, qint64>> expected;
    qsizetype clips = 0;
};

class TooLargeTable : public Clipboard, public testing::WithParamInterface<TooLargeCase> {};

TEST_P(TooLargeTable, isReportedOncePerCopy) {
    QList<std::pair<TooLarge::Kind, qint64>> said;
    QObject::connect(&*manager, &ClipboardManager::tooLarge, [&](const TooLarge& what) {
        said.append({what.kind, what.amount});
    });
    pasteboard.tooLarge = GetParam().tooLarge;
    by(one, GetParam().offered)(*this);
    by(other, GetParam().offered)(*this); // Passed on.
    EXPECT_EQ(said.size(), GetParam().expected ? 1 : 0);
    EXPECT_EQ(said.value(0), GetParam().expected.value_or(said.value(0)));
    EXPECT_EQ(store.clips().size(), GetParam().clips);
}

const PasteboardEntry refusedPng{u"image/png"_s, {}};
const PasteboardEntry refusedText{plainTextType, {}};
const QHash<QString, qint64> largeText{{plainTextType, 9'000'000}};
const QHash<QString, qint64> largePng{{u"image/png"_s, 70'000'000}};

INSTANTIATE_TEST_SUITE_P(
    Copies, TooLargeTable,
    testing::Values(
        TooLargeCase{"text", {refusedText}, largeText, std::pair(TooLarge::Kind::text, 9'000'000)},
        TooLargeCase{"image", {refusedPng}, largePng, std::pair(TooLarge::Kind::image, 70'000'000)},
        TooLargeCase{"pixels",
                     {{u"image/bmp"_s, widePicture("BMP")}},
                     {},
                     std::pair(TooLarge::Kind::pixels, 8192 * 4097)},
        TooLargeCase{"pixelsOfPng", widePng, {}, std::pair(TooLarge::Kind::pixels, 8192 * 4097)},
        TooLargeCase{"otherForm", {refusedPng, {u"image/bmp"_s, picture("bmp")}}, largePng, {}, 1},
        TooLargeCase{"imageInstead", {refusedText, png.front()}, largeText, {}, 1},
        TooLargeCase{"refused", {refusedText, refusedPng}, {}, {}}),
    [](const auto& row) { return row.param.name; });

constexpr qint64 overLimit = (64 << 20) + 1;

struct LargeFile {
    const char* name;
    QByteArray contents;
    qint64 length;
    QList<std::pair<TooLarge::Kind, qint64>> reported;
};

TEST_F(Clipboard, aCopiedImageFileThatIsTooLargeIsReportedOnce) {
    const LargeFile files[] = {
        {"bytes", picture("png"), overLimit, {{TooLarge::Kind::image, overLimit}}},
        {"pixels",
         widePicture("BMP"),
         widePicture("BMP").size(),
         {{TooLarge::Kind::pixels, 8192 * 4097}}},
        {"noPicture", "text", overLimit, {}}};
    for (const LargeFile& large : files) {
        QList<std::pair<TooLarge::Kind, qint64>> said;
        const auto connection =
            QObject::connect(&*manager, &ClipboardManager::tooLarge, [&](const TooLarge& what) {
                said.append({what.kind, what.amount});
            });
        QFile file(folder.filePath(QString::fromLatin1(large.name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(large.contents) > 0);
        ASSERT_TRUE(file.resize(large.length));
        const QByteArray list = QUrl::fromLocalFile(file.fileName()).toEncoded();
        for (const PasteboardOwner& owner : {one, other}) { // The other passes it on.
            by(owner, {{filesType, list}})(*this);
            settle(); // A file is read before the worker gets it.
        }
        QObject::disconnect(connection);
        EXPECT_EQ(said, large.reported) << large.name;
        EXPECT_EQ(texts(), QStringList()) << large.name;
    }
}

} // namespace
} // namespace ravelo
