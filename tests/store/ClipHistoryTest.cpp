#include "store/ClipHistory.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A list in short: "*b@3 a@1" is a pinned b captured at 3 before an a captured at 1; a text that
/// ends in ".png" stands for an image.
QList<ClipItem> list(const QString& shorthand) {
    QList<ClipItem> clips;
    for (const QString& word : shorthand.split(u' ', Qt::SkipEmptyParts)) {
        const bool pinned = word.startsWith(u'*');
        const QStringList parts = word.mid(pinned ? 1 : 0).split(u'@');
        const bool image = parts[0].endsWith(u".png"_s);
        clips.append({QUuid::createUuid(),
                      image ? u"Image"_s : parts[0],
                      image ? ClipKind::image : ClipKind::text,
                      {parts.value(1).toDouble()},
                      pinned,
                      image ? parts[0] : QString()});
    }
    return clips;
}

std::string shorthand(const QList<ClipItem>& clips) {
    QStringList words;
    for (const ClipItem& clip : clips) {
        words.append((clip.pinned ? u"*"_s : QString()) +
                     (clip.kind == ClipKind::image ? clip.imageFileName : clip.text) + u'@' +
                     QString::number(clip.date.sinceReference));
    }
    return words.join(u' ').toStdString();
}

struct Adding {
    const char* before;
    const char16_t* text;
    const char* after; ///< Null where nothing changes.
};

void PrintTo(const Adding& row, std::ostream* out) {
    *out << QString::fromUtf16(row.text).toStdString() << " to '" << row.before << "'";
}

class AddedText : public testing::TestWithParam<Adding> {};

TEST_P(AddedText, GivesThisList) {
    const auto& [before, text, after] = GetParam();
    const auto change =
        ClipHistory::added(list(QString::fromUtf8(before)), QString::fromUtf16(text), {9});
    EXPECT_EQ(change ? shorthand(change->clips) : "unchanged", after ? after : "unchanged");
    EXPECT_TRUE(!change || change->orphanedImages.isEmpty()) << "a text never deletes an image";
}

INSTANTIATE_TEST_SUITE_P(
    Table, AddedText,
    testing::Values(
        Adding{"", u"abc", "abc@9"}, Adding{"b@2 a@1", u"c", "c@9 b@2 a@1"},
        Adding{"", u"", nullptr}, Adding{"", u" \t\r\n\v\f\u00a0\u2003\u2028\u0085", nullptr},
        Adding{"abc@1", u"abc", nullptr}, Adding{"abc@1", u"ABC", "ABC@9 abc@1"},
        Adding{"abc@1", u"abc\u00a0", "abc\u00a0@9 abc@1"},
        Adding{"é@1", u"e\u0301", "e\u0301@9 é@1"}, Adding{"def@2 abc@1", u"abc", "abc@9 def@2"},
        Adding{"c@4 a@3 b@2 a@1", u"a", "a@9 c@4 b@2"}, Adding{"*abc@2 abc@1", u"abc", nullptr},
        Adding{"*abc@1", u"abc", "abc@9 *abc@1"},
        Adding{"*abc@3 def@2", u"abc", "abc@9 *abc@3 def@2"},
        Adding{"*z@4 def@3 abc@2 *abc@1", u"abc", "abc@9 *z@4 def@3 *abc@1"},
        Adding{"p.png@1", u"Image", nullptr}, Adding{"a@2 p.png@1", u"Image", "Image@9 a@2"}));

TEST(ClipHistory, KeepsTheTextAsItWasCopied) {
    const auto change = ClipHistory::added({}, u"\n https://a.example/b \n"_s, {9});
    ASSERT_TRUE(change);
    EXPECT_EQ(change->clips[0].text, u"\n https://a.example/b \n"_s);
    EXPECT_EQ(change->clips[0].kind, ClipKind::url);
    EXPECT_FALSE(change->clips[0].id.isNull());
    EXPECT_FALSE(change->clips[0].pinned);
}

using Link = std::pair<const char*, ClipKind>;

class LinkTest : public testing::TestWithParam<Link> {};

TEST_P(LinkTest, TellsTheKind) {
    const auto change = ClipHistory::added({}, QString::fromUtf8(GetParam().first), {9});
    ASSERT_TRUE(change);
    EXPECT_EQ(change->clips[0].kind, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LinkTest,
    testing::Values(
        Link("https://larkspur.example", ClipKind::url), Link("HTTP://a.b/ü?c=d#e", ClipKind::url),
        Link("file:///etc/hosts", ClipKind::url), Link("git+ssh://g@h:1/x", ClipKind::url),
        Link("mailto:a@b.example", ClipKind::text), Link("a.example/b", ClipKind::text),
        Link("//a.example/b", ClipKind::text), Link("://a.example", ClipKind::text),
        Link("see https://a.example", ClipKind::text),
        Link("https://a.example and more", ClipKind::text),
        Link("https://a.example\nhttps://b.example", ClipKind::text),
        Link("https://a.example/%zz", ClipKind::text), Link("1http://a", ClipKind::text)));

TEST(ClipHistory, HoldsSixtyUnpinnedClips) {
    QList<ClipItem> clips = list(u"*p@0 *q@0"_s);
    for (int i = 1; i <= 60; ++i) {
        clips = ClipHistory::imageAdded(clips, u"%1.png"_s.arg(i), {0}).clips;
    }
    EXPECT_EQ(clips.size(), 62);

    const auto byText = ClipHistory::added(clips, u"a"_s, {9});
    ASSERT_TRUE(byText);
    EXPECT_EQ(byText->clips.size(), 62);
    EXPECT_EQ(shorthand(byText->clips.last(3)), "2.png@0 *p@0 *q@0") << "1.png was the oldest";
    EXPECT_EQ(byText->orphanedImages, QStringList())
        << "a text leaves the file of what it pushes out";

    const ClipChange byImage = ClipHistory::imageAdded(clips, u"61.png"_s, {9});
    EXPECT_EQ(byImage.clips.size(), 62);
    EXPECT_EQ(shorthand(byImage.clips.first(2)), "61.png@9 60.png@0");
    EXPECT_EQ(byImage.orphanedImages, QStringList(u"1.png"_s));
}

TEST(ClipHistory, TrimsAFileThatHeldTooManyInOneStep) {
    QList<ClipItem> clips;
    for (int i = 1; i <= 100; ++i) {
        clips.append(list(u"%1.png@1"_s.arg(i)));
    }
    const ClipChange change = ClipHistory::imageAdded(clips, u"new.png"_s, {9});
    EXPECT_EQ(change.clips.size(), 60);
    EXPECT_EQ(change.orphanedImages.size(), 41);
    EXPECT_EQ(change.orphanedImages.first(), u"60.png"_s);
}

TEST(ClipHistory, EqualImagesMakeTwoClips) {
    const ClipChange change = ClipHistory::imageAdded(list(u"*z@2 a.png@1"_s), u"b.png"_s, {9});
    EXPECT_EQ(shorthand(change.clips), "b.png@9 *z@2 a.png@1");
    EXPECT_EQ(change.clips[0].text, u"Image"_s);
}

struct Step {
    const char* before;
    int index;         ///< Of the clip that is meant; -1 for one that is not in the list.
    const char* after; ///< Null where nothing changes.
    QStringList orphans;
};

void PrintTo(const Step& row, std::ostream* out) {
    *out << row.index << " of '" << row.before << "'";
}

QUuid idAt(const QList<ClipItem>& clips, int index) {
    return index < 0 ? QUuid::createUuid() : clips[index].id;
}

class ToggledPin : public testing::TestWithParam<Step> {};

TEST_P(ToggledPin, SortsOlderFirst) {
    const QList<ClipItem> before = list(QString::fromUtf8(GetParam().before));
    const auto change = ClipHistory::pinToggled(before, idAt(before, GetParam().index));
    EXPECT_EQ(change ? shorthand(change->clips) : "unchanged",
              GetParam().after ? GetParam().after : "unchanged");
}

INSTANTIATE_TEST_SUITE_P(Table, ToggledPin,
                         testing::Values(Step{"c@3 b@2 a@1", 1, "*b@2 a@1 c@3", {}},
                                         Step{"*b@2 a@1 c@3", 1, "*a@1 *b@2 c@3", {}},
                                         Step{"*a@1 *d@4 c@3", 1, "*a@1 c@3 d@4", {}},
                                         Step{"z@1 y@1 x@1 *w@1", 1, "*y@1 *w@1 z@1 x@1", {}},
                                         Step{"b@2 a@1", -1, nullptr, {}},
                                         Step{"", -1, nullptr, {}}));

using Order = HistoryRules::Order;

class NewestFirst : public testing::TestWithParam<Step> {};

TEST_P(NewestFirst, IsKeptAfterAPin) {
    const QList<ClipItem> before = list(QString::fromUtf8(GetParam().before));
    const auto change =
        ClipHistory::pinToggled(before, idAt(before, GetParam().index), Order::newerFirst);
    ASSERT_TRUE(change);
    EXPECT_EQ(shorthand(change->clips), GetParam().after);
    EXPECT_FALSE(ClipHistory::newerFirst(change->clips)) << "it is sorted already";
}

INSTANTIATE_TEST_SUITE_P(Table, NewestFirst,
                         testing::Values(Step{"c@3 b@2 a@1", 1, "*b@2 c@3 a@1", {}},
                                         Step{"*b@2 c@3 a@1", 2, "*b@2 *a@1 c@3", {}},
                                         Step{"d@4 *b@2 *a@1 c@3", 1, "*a@1 d@4 c@3 b@2", {}},
                                         Step{"z@1 y@1 *w@1", 1, "*y@1 *w@1 z@1", {}}));

class SwitchedToNewestFirst : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(SwitchedToNewestFirst, MovesNoneAcrossAPinnedOne) {
    const auto& [before, after] = GetParam();
    const auto change = ClipHistory::newerFirst(list(QString::fromUtf8(before)));
    EXPECT_EQ(change ? shorthand(change->clips) : "unchanged", after);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SwitchedToNewestFirst,
    testing::Values(std::pair("", "unchanged"), std::pair("b@2 *z@5 a@1", "unchanged"),
                    std::pair("*a@1 *b@2 c@3 d@4", "*b@2 *a@1 d@4 c@3"),
                    std::pair("e@5 *a@1 *b@2 c@3 d@4", "e@5 *b@2 *a@1 d@4 c@3"),
                    std::pair("*a@1 *b@2", "*b@2 *a@1"), std::pair("y@1 x@1", "unchanged")));

TEST(ClipHistory, IsAsLongAsItIsTold) {
    QList<ClipItem> clips;
    for (int i = 0; i < 300; ++i) {
        clips.append(list(u"%1.png@1"_s.arg(i)));
    }
    for (const auto& [limit, length] : {std::pair(60, 60), {200, 200}, {1000, 301}}) {
        const HistoryRules rules{Order::olderFirst, limit};
        EXPECT_EQ(ClipHistory::added(clips, u"a"_s, {9}, rules)->clips.size(), length) << limit;
        const ClipChange change = ClipHistory::imageAdded(clips, u"a.png"_s, {9}, rules);
        EXPECT_EQ(change.clips.size(), length) << limit;
        EXPECT_EQ(change.orphanedImages.size(), 301 - length) << limit;
    }
}

class DeletedClip : public testing::TestWithParam<Step> {};

TEST_P(DeletedClip, LeavesTheOthers) {
    const QList<ClipItem> before = list(QString::fromUtf8(GetParam().before));
    const auto change = ClipHistory::deleted(before, idAt(before, GetParam().index));
    ASSERT_EQ(change.has_value(), GetParam().after != nullptr);
    if (change) {
        EXPECT_EQ(shorthand(change->clips), GetParam().after);
        EXPECT_EQ(change->orphanedImages, GetParam().orphans);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, DeletedClip,
                         testing::Values(Step{"*b@2 a@1", 0, "a@1", {}},
                                         Step{"b@2 p.png@1", 1, "b@2", {u"p.png"_s}},
                                         Step{"*p.png@1", 0, "", {u"p.png"_s}},
                                         Step{"a@1", -1, nullptr, {}}));

TEST(ClipHistory, ClearingKeepsPinnedClipsInTheirOrder) {
    const ClipChange change =
        ClipHistory::cleared(list(u"a@5 *b@2 p.png@4 *q.png@3 r.png@1 *c@1"_s));
    EXPECT_EQ(shorthand(change.clips), "*b@2 *q.png@3 *c@1");
    EXPECT_EQ(change.orphanedImages, QStringList({u"p.png"_s, u"r.png"_s}));
}

} // namespace

} // namespace ravelo
