#include "store/history/ClipHistory.h"

#include "store/history/ClipForms.h"

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

constexpr const char* unchanged = "unchanged";

std::string result(const std::optional<ClipChange>& change) {
    return change ? shorthand(change->clips) : unchanged;
}

TEST(ClipHistory, AddsText) {
    struct Row {
        const char* before;
        const char16_t* text;
        const char* after;
    };

    const Row table[] = {
        {"", u"abc", "abc@9"},
        {"b@2 a@1", u"c", "c@9 b@2 a@1"},
        {"", u"", unchanged},
        {"", u" \t\r\n\v\f\u00a0\u2003\u2028\u0085", unchanged},
        {"abc@1", u"abc", unchanged},
        {"abc@1", u"ABC", "ABC@9 abc@1"},
        {"abc@1", u"abc\u00a0", "abc\u00a0@9 abc@1"},
        {"é@1", u"e\u0301", "e\u0301@9 é@1"},
        {"def@2 abc@1", u"abc", "abc@9 def@2"},
        {"c@4 a@3 b@2 a@1", u"a", "a@9 c@4 b@2"},
        {"*abc@2 abc@1", u"abc", unchanged},
        {"*abc@1", u"abc", "abc@9 *abc@1"},
        {"*abc@3 def@2", u"abc", "abc@9 *abc@3 def@2"},
        {"*z@4 def@3 abc@2 *abc@1", u"abc", "abc@9 *z@4 def@3 *abc@1"},
        {"p.png@1", u"Image", unchanged},
        {"a@2 p.png@1", u"Image", "Image@9 a@2"},
    };
    for (const auto& [before, text, after] : table) {
        const auto change =
            ClipHistory::added(list(QString::fromUtf8(before)), QString::fromUtf16(text), {9});
        EXPECT_EQ(result(change), after) << qPrintable(QString::fromUtf16(text));
        EXPECT_TRUE(!change || change->orphanedImages.isEmpty()) << "a text deleted an image";
    }
}

TEST(ClipHistory, KeepsTheTextAsItWasCopied) {
    const auto change = ClipHistory::added({}, u"\n https://a.example/b \n"_s, {9});
    ASSERT_TRUE(change);
    EXPECT_EQ(change->clips[0].text, u"\n https://a.example/b \n"_s);
    EXPECT_EQ(change->clips[0].kind, ClipKind::url);
    EXPECT_FALSE(change->clips[0].id.isNull());
    EXPECT_FALSE(change->clips[0].pinned);
}

TEST(ClipHistory, RecognizesLinks) {
    const std::pair<const char*, ClipKind> table[] = {
        {"https://larkspur.example", ClipKind::url},
        {"HTTP://a.b/ü?c=d#e", ClipKind::url},
        {"file:///etc/hosts", ClipKind::url},
        {"git+ssh://g@h:1/x", ClipKind::url},
        {"mailto:a@b.example", ClipKind::text},
        {"a.example/b", ClipKind::text},
        {"//a.example/b", ClipKind::text},
        {"://a.example", ClipKind::text},
        {"see https://a.example", ClipKind::text},
        {"https://a.example and more", ClipKind::text},
        {"https://a.example\nhttps://b.example", ClipKind::text},
        {"https://a.example/%zz", ClipKind::text},
        {"1http://a", ClipKind::text},
    };
    for (const auto& [text, kind] : table) {
        EXPECT_EQ(ClipHistory::added({}, QString::fromUtf8(text), {9}).value().clips[0].kind, kind)
            << text;
    }
}

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

TEST(ClipHistory, EqualImagesMakeTwoClips) {
    const ClipChange change = ClipHistory::imageAdded(list(u"*z@2 a.png@1"_s), u"b.png"_s, {9});
    EXPECT_EQ(shorthand(change.clips), "b.png@9 *z@2 a.png@1");
    EXPECT_EQ(change.clips[0].text, u"Image"_s);
}

QUuid idAt(const QList<ClipItem>& clips, int index) {
    return index < 0 ? QUuid::createUuid() : clips[index].id;
}

using Order = HistoryRules::Order;

TEST(ClipHistory, SortsAfterAPin) {
    struct Row {
        Order order;
        const char* before;
        int index; ///< Of the clip; -1 for one that is not in the list.
        const char* after;
    };

    const Row table[] = {
        {Order::olderFirst, "c@3 b@2 a@1", 1, "*b@2 a@1 c@3"},
        {Order::olderFirst, "*b@2 a@1 c@3", 1, "*a@1 *b@2 c@3"},
        {Order::olderFirst, "*a@1 *d@4 c@3", 1, "*a@1 c@3 d@4"},
        {Order::olderFirst, "z@1 y@1 x@1 *w@1", 1, "*y@1 *w@1 z@1 x@1"},
        {Order::olderFirst, "b@2 a@1", -1, unchanged},
        {Order::newerFirst, "c@3 b@2 a@1", 1, "*b@2 c@3 a@1"},
        {Order::newerFirst, "*b@2 c@3 a@1", 2, "*b@2 *a@1 c@3"},
        {Order::newerFirst, "d@4 *b@2 *a@1 c@3", 1, "*a@1 d@4 c@3 b@2"},
        {Order::newerFirst, "z@1 y@1 *w@1", 1, "*y@1 *w@1 z@1"},
    };
    for (const auto& [order, text, index, after] : table) {
        const QList<ClipItem> before = list(QString::fromUtf8(text));
        const auto change = ClipHistory::pinToggled(before, idAt(before, index), order);
        EXPECT_EQ(result(change), after) << index << " of " << text;
        if (order == Order::newerFirst) {
            EXPECT_FALSE(ClipHistory::newerFirst(change.value().clips)) << "not sorted: " << text;
        }
    }
}

TEST(ClipHistory, SwitchingToNewestFirstMovesNoneAcrossAPinnedOne) {
    const std::pair<const char*, const char*> table[] = {
        {"", unchanged},
        {"b@2 *z@5 a@1", unchanged},
        {"*a@1 *b@2 c@3 d@4", "*b@2 *a@1 d@4 c@3"},
        {"e@5 *a@1 *b@2 c@3 d@4", "e@5 *b@2 *a@1 d@4 c@3"},
        {"*a@1 *b@2", "*b@2 *a@1"},
        {"y@1 x@1", unchanged},
    };
    for (const auto& [before, after] : table) {
        EXPECT_EQ(result(ClipHistory::newerFirst(list(QString::fromUtf8(before)))), after);
    }
}

TEST(ClipHistory, KeepsToItsLimit) {
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
        EXPECT_EQ(change.orphanedImages.value(0),
                  limit > 300 ? QString() : u"%1.png"_s.arg(limit - 1));
    }
}

TEST(ClipHistory, DeletesOne) {
    struct Row {
        const char* before;
        int index;
        const char* after;
        QStringList orphans;
    };

    const Row table[] = {{"*b@2 a@1", 0, "a@1", {}},
                         {"b@2 p.png@1", 1, "b@2", {u"p.png"_s}},
                         {"*p.png@1", 0, "", {u"p.png"_s}},
                         {"a@1", -1, unchanged, {}}};
    for (const auto& [text, index, after, orphans] : table) {
        const QList<ClipItem> before = list(QString::fromUtf8(text));
        const auto change = ClipHistory::deleted(before, {idAt(before, index)});
        EXPECT_EQ(result(change), after) << text;
        EXPECT_EQ(change.value_or(ClipChange()).orphanedImages, orphans) << text;
    }
}

TEST(ClipHistory, ClearingKeepsPinnedClipsInTheirOrder) {
    const ClipChange change =
        ClipHistory::cleared(list(u"a@5 *b@2 p.png@4 *q.png@3 r.png@1 *c@1"_s));
    EXPECT_EQ(shorthand(change.clips), "*b@2 *q.png@3 *c@1");
    EXPECT_EQ(change.orphanedImages, QStringList({u"p.png"_s, u"r.png"_s}));
}

TEST(ClipHistory, TrimsByAgeAndThenBySizeTheOldestFirst) {
    struct Case {
        const char* before;
        HistoryRules rules;
        const char* after;
        QStringList orphans;
    };

    const FileSizes sizes{{u"p.png"_s, 100}, {u"q.png"_s, 50}};
    const Case table[] = {
        {"a@9 b@1", {}, unchanged, {}},
        {"a@9 b@5 *c@1 p.png@2", {Order::newerFirst, 60, 5}, "a@9 *c@1", {u"p.png"_s}},
        {"aaa@9 bb@8 c@1", {Order::newerFirst, 60, 0, 5}, "aaa@9 bb@8", {}},
        {"aaa@9 bb@8 c@1", {Order::newerFirst, 60, 0, 6}, unchanged, {}},
        {"\u00e4\u00e4@9 b@1", {Order::newerFirst, 60, 0, 4}, "\u00e4\u00e4@9", {}},
        {"*aaaa@1 b@2", {Order::newerFirst, 60, 0, 2}, "*aaaa@1", {}},
        {"q.png@9 a@1 p.png@2", {Order::newerFirst, 60, 0, 0, 60}, "q.png@9 a@1", {u"p.png"_s}},
        {"*p.png@9 q.png@2", {Order::newerFirst, 60, 0, 0, 60}, "*p.png@9", {u"q.png"_s}},
        // The order of the list does not matter, nor does an image of unknown size.
        {"b@2 a@1 cc@9", {Order::olderFirst, 60, 0, 3}, "b@2 cc@9", {}},
        {"x.png@1", {Order::newerFirst, 60, 0, 0, 1}, unchanged, {}}};
    for (const auto& [before, rules, after, orphans] : table) {
        const auto change =
            ClipHistory::trimmed(list(QString::fromUtf8(before)), {10}, rules, sizes);
        EXPECT_EQ(result(change), after) << before;
        EXPECT_EQ(change.value_or(ClipChange()).orphanedImages, orphans) << before;
    }
}

TEST(ClipHistory, TheOldestUnpinnedFormsGoFirst) {
    const QList<ClipItem> clips = list(u"*a@1 c@9 b@2 none@0"_s);
    FileSizes sizes;
    for (int i = 0; i < 3; ++i) {
        sizes.insert(formsFileName(clips[i].id), 100);
    }
    EXPECT_EQ(ClipHistory::surplusForms(clips, 300, sizes), QSet<QUuid>());
    EXPECT_EQ(ClipHistory::surplusForms(clips, 299, sizes), QSet<QUuid>{clips[2].id});
    EXPECT_EQ(ClipHistory::surplusForms(clips, 10, sizes), (QSet<QUuid>{clips[1].id, clips[2].id}))
        << "the pinned one's stay";
}

TEST(ClipHistory, MergesLaterClipsAsIfTheyWereCopiedNow) {
    const QList<ClipItem> before = list(u"b@3 a@2 *c@1"_s);
    QList<ClipItem> later = list(u"d@9 b@8 p.png@7"_s);
    later.append(before[1]); // It is there already.
    EXPECT_EQ(shorthand(ClipHistory::merged(before, later, {}).clips), "d@9 b@8 p.png@7 a@2 *c@1");
    EXPECT_EQ(
        shorthand(ClipHistory::merged(before, later, {HistoryRules::Order::olderFirst, 2}).clips),
        "d@9 b@8 *c@1");
    for (ClipItem& clip : later) {
        clip.secret = u"github"_s;
    }
    const QList<ClipItem> clips = ClipHistory::merged(before, later, {}).clips;
    EXPECT_EQ(clips[0].secret, u"github"_s);
    EXPECT_EQ(clips[1].secret, QString()) << "b is an ordinary clip already";
}

TEST(ClipHistory, JoinsTwoListsByDate) {
    EXPECT_EQ(
        shorthand(ClipHistory::joined(list(u"*c@1 b@5 a@2"_s), list(u"b@4 d@3 *e@9 p.png@3"_s))),
        "*e@9 *c@1 b@5 d@3 p.png@3 a@2");
}

} // namespace

} // namespace ravelo
