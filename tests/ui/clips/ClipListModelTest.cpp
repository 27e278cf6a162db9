#include "ui/clips/ClipListModel.h"
#include "fakes/PanelWorld.h"
#include "support/TestPictures.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

/// Follows a model's ids by its row signals alone, like a view.
class Mirror {
public:
    explicit Mirror(const ClipListModel& model) : model_(model) {
        for (int row = 0; row < model_.count(); ++row) {
            ids.append(model_.idAt(row));
        }
        QObject::connect(&model, &ClipListModel::rowsInserted, &context_,
                         [this](const QModelIndex&, int first, int last) {
                             for (int row = first; row <= last; ++row) {
                                 ids.insert(row, model_.idAt(row));
                             }
                             ++inserts;
                         });
        QObject::connect(&model, &ClipListModel::rowsRemoved, &context_,
                         [this](const QModelIndex&, int first, int last) {
                             ids.remove(first, last - first + 1);
                             ++removes;
                         });
        QObject::connect(&model, &ClipListModel::rowsMoved, &context_,
                         [this](const QModelIndex&, int first, int, const QModelIndex&, int to) {
                             ids.move(first, to > first ? to - 1 : to);
                             ++moves;
                         });
        QObject::connect(&model, &ClipListModel::modelReset, &context_, [this] { ++resets; });
    }

    QList<QUuid> ids;
    int inserts = 0;
    int removes = 0;
    int moves = 0;
    int resets = 0;

private:
    const ClipListModel& model_;
    QObject context_;
};

QList<QUuid> idsOf(const QList<ClipItem>& clips) {
    QList<QUuid> ids;
    for (const ClipItem& clip : clips) {
        ids.append(clip.id);
    }
    return ids;
}

StoreData fiveClips() {
    StoreData data;
    for (const char* text : {"one", "two", "three", "four", "five"}) {
        data.clips.append(clip(QString::fromLatin1(text), Seconds(60)));
    }
    return data;
}

TEST(ClipListModel, reportsInsertsRemovesAndMoves) {
    struct Case {
        const char* name;
        void (*change)(Store& store);
        int inserts;
        int removes;
        int moves;
    };

    const Case cases[] = {
        {"copied", [](Store& store) { store.addClip(u"six"_s); }, 1, 0, 0},
        {"copied again", [](Store& store) { store.addClip(u"four"_s); }, 1, 1, 0},
        {"deleted", [](Store& store) { store.deleteClip(store.clips()[2].id); }, 0, 1, 0},
        {"pinned from the end", [](Store& store) { store.togglePin(store.clips()[4].id); }, 0, 0,
         1},
        {"cleared", [](Store& store) { store.clearClips(); }, 0, 1, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        PanelWorld world(fiveClips());
        const ClipListModel model(world.store, world.scheduler, english);
        const Mirror mirror(model);
        c.change(world.store);
        EXPECT_EQ(mirror.ids, idsOf(world.store.clips()));
        EXPECT_EQ(mirror.inserts, c.inserts);
        EXPECT_EQ(mirror.removes, c.removes);
        EXPECT_EQ(mirror.moves, c.moves);
        EXPECT_EQ(mirror.resets, 0);
    }
}

TEST(ClipListModel, reportsAClipThatChangesInPlace) {
    PanelWorld world(fiveClips());
    const ClipListModel model(world.store, world.scheduler, english);
    QList<int> changed;
    QObject::connect(&model, &ClipListModel::dataChanged, &model,
                     [&](const QModelIndex& first) { changed.append(first.row()); });
    world.store.togglePin(world.store.clips()[0].id);
    EXPECT_EQ(changed, QList<int>{0});
    EXPECT_EQ(model.data(model.index(0), ClipListModel::pinnedRole), true);
}

ClipItem pinned(ClipItem item) {
    item.pinned = true;
    return item;
}

TEST(ClipListModel, showsTitleIconAndSubtitle) {
    struct Case {
        ClipItem item;
        QString title;
        QString icon;
        QString subtitle;
    };

    const Case cases[] = {
        {clip(u"a text"_s, Seconds(300)), u"a text"_s, u"doc.text"_s, u"5 min. ago"_s},
        {clip(u"one\ntwo\n\nfour"_s, Seconds(12)), u"one two  four"_s, u"doc.text"_s,
         u"12 sec. ago"_s},
        {clip(u"https://a.example"_s, Seconds(7200), ClipKind::url), u"https://a.example"_s,
         u"link"_s, u"2 hr. ago"_s},
        {clip(u"Image"_s, Seconds(60), ClipKind::image), u"Image"_s, u"photo"_s, u"1 min. ago"_s},
        {clip(u"x"_s, Seconds(60), ClipKind::image), u"Image"_s, u"photo"_s, u"1 min. ago"_s},
        {pinned(clip(u"kept"_s, Seconds(2 * 86400))), u"kept"_s, u"doc.text"_s,
         u"Pinned · 2 days ago"_s},
        {clip(QString(1 << 20, u'm'), Seconds(1)), QString(1000, u'm'), u"doc.text"_s,
         u"1 sec. ago"_s},
    };
    for (const Case& c : cases) {
        StoreData data;
        data.clips = {c.item};
        PanelWorld world(data);
        const ClipListModel model(world.store, world.scheduler, english);
        const QModelIndex row = model.index(0);
        EXPECT_EQ(model.data(row, ClipListModel::titleRole).toString(), c.title);
        EXPECT_EQ(model.data(row, ClipListModel::iconRole).toString(), c.icon);
        EXPECT_EQ(model.data(row, ClipListModel::subtitleRole).toString(), c.subtitle);
    }
}

TEST(ClipListModel, showsProgramAndSizeIfSet) {
    StoreData data;
    data.clips = {clip(u"a"_s, Seconds(60)), pinned(clip(u"/x\n/y"_s, Seconds(60))),
                  clip(u"plain"_s, Seconds(60))};
    PanelWorld world(data);
    world.store.addImageClip({{u"image/png"_s}, {{u"image/png"_s, picture("png", Qt::red)}}});
    world.scheduler.advance(Seconds(0));
    world.worker.drain();
    ClipListModel model(world.store, world.scheduler, english);
    const auto subtitles = [&] {
        QStringList all;
        for (int row = 0; row < model.count(); ++row) {
            all.append(model.data(model.index(row), ClipListModel::subtitleRole).toString());
        }
        return all;
    };
    const QUuid image = model.idAt(0);
    world.store.setForms(image, {u"gimp"_s});
    world.store.setForms(data.clips[0].id, {u"org.kde.kate"_s});
    world.store.setForms(data.clips[1].id,
                         {u"Thunar"_s, {{u"text/uri-list"_s, "file:///x\r\nfile:///y\r\n"}}});
    EXPECT_EQ(subtitles()[2], u"Pinned · 1 min. ago"_s);
    model.setOrigins(ClipListModel::Origins::shown);
    world.scheduler.advance(Seconds(0));
    const QString now = model.data(model.index(0), ClipListModel::agoRole).toString();
    const QSize size = world.store.detailsOf(image).pixels;
    EXPECT_FALSE(size.isEmpty());
    EXPECT_EQ(subtitles(),
              QStringList({u"%1 × %2 · Gimp · %3"_s.arg(size.width()).arg(size.height()).arg(now),
                           u"Kate · 1 min. ago"_s, u"Pinned · 2 files · Thunar · 1 min. ago"_s,
                           u"1 min. ago"_s}));
    model.setSearch(u"app:thun"_s);
    EXPECT_EQ(model.tally(), u"1 of 4"_s);
    model.setSearch(u"type:files"_s);
    EXPECT_EQ(model.tally(), u"1 of 4"_s);
}

TEST(ClipListModel, searchesByARegularExpression) {
    struct Case {
        QString search;
        QString tally;
        QList<TextRange> marks; ///< In the first row.
        QString nothingFound;
    };

    const Case cases[] = {
        {u"re:o+ [a-z]"_s, u"1 of 3"_s, {{1, 4}}, u"Nothing matches"_s},
        {u"re:(?i)FOO"_s, u"2 of 3"_s, {{0, 3}}, u"Nothing matches"_s},
        {u"re:x*"_s, u"3 of 3"_s, {}, u"Nothing matches"_s},
        {u"re:[foo"_s, u"0 of 3"_s, {}, u"A bracket is not closed, at character 1"_s},
        {u"re:^nothing$"_s, u"0 of 3"_s, {}, u"Nothing matches"_s},
    };
    StoreData data;
    data.clips = {clip(u"foo bar"_s, Seconds(1)), clip(u"Foo"_s, Seconds(2)),
                  clip(u"third"_s, Seconds(3))};
    PanelWorld world(data);
    ClipListModel model(world.store, world.scheduler, english);
    for (const Case& c : cases) {
        model.setSearch(c.search);
        EXPECT_EQ(model.tally(), c.tally) << qPrintable(c.search);
        if (model.count() > 0) {
            EXPECT_EQ(
                model.data(model.index(0), ClipListModel::marksRole).value<QList<TextRange>>(),
                c.marks)
                << qPrintable(c.search);
        }
        EXPECT_EQ(model.nothingFound(), c.nothingFound) << qPrintable(c.search);
    }
}

TEST(ClipListModel, givesUpAnExpressionThatTakesTooLong) {
    StoreData data;
    for (int i = 0; i < 1000; ++i) {
        data.clips.append(clip(QString(60'000, u'a') + QString::number(i), Seconds(i)));
    }
    PanelWorld world(data);
    ClipListModel model(world.store, world.scheduler, english);
    QElapsedTimer spent;
    spent.start();
    model.setSearch(u"re:(a+)+[x-z]$"_s);
    model.finishSearch();
    EXPECT_LT(spent.elapsed(), 2000);
    EXPECT_EQ(model.count(), 0);
    EXPECT_EQ(model.nothingFound(), u"This expression takes too long"_s);
}

const QLocale turkish(QLocale::Turkish, QLocale::Turkey);

TEST(ClipListModel, findsTheClipsThatContainTheSearch) {
    struct Case {
        QString search;
        QStringList texts;
        QList<int> found;
        QLocale locale = english;
    };

    const Case cases[] = {
        {u"ABC"_s, {u"xabcx"_s, u"ab c"_s, u"Abc"_s}, {0, 2}},
        {u"q"_s, {u"one"_s, u"two"_s}, {}},
        {u" "_s, {u"one two"_s, u"three"_s}, {0}},
        {u".*"_s, {u"one"_s, u"a.*b"_s}, {1}},
        {u"ÄRGER"_s, {u"ärger"_s, u"arger"_s}, {0}},
        {u"caf\u00e9"_s, {u"cafe\u0301"_s, u"cafe"_s}, {0}},
        {u"cafe"_s, {QString(60, u'-') + u"cafe\u0301"_s, u"CAFE \u0301"_s}, {1}},
        {u"STRASSE"_s, {u"Hauptstraße 5"_s}, {0}},
        {u"sao paulo"_s, {u"S\u00e3o Paulo"_s, u"Paulo, S\u00c3O"_s, u"Saulo"_s}, {0, 1}},
        {u"18 oak"_s, {u"oak, 18 mm"_s, u"oak"_s}, {0}},
        {u"oak 18"_s, {u"18 mm oak"_s, u"oak 18"_s}, {1}}, // No words while a clip has the phrase.
        {u"i"_s, {u"I"_s, u"\u0130"_s}, {1}, turkish},
        {u"\u0131"_s, {u"I"_s, u"i"_s}, {0}, turkish},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.search));
        StoreData data;
        for (const QString& text : c.texts) {
            data.clips.append(clip(text, Seconds(60)));
        }
        PanelWorld world(data);
        ClipListModel model(world.store, world.scheduler, c.locale);
        model.setSearch(c.search);
        QList<QUuid> expected;
        for (const int row : c.found) {
            expected.append(world.store.clips()[row].id);
        }
        EXPECT_EQ(Mirror(model).ids, expected);
        model.setSearch({});
        EXPECT_EQ(Mirror(model).ids, idsOf(world.store.clips()));
    }
}

TEST(ClipListModel, marksWhatIsSearchedForInTitles) {
    struct Case {
        QString search;
        QString text;
        QList<TextRange> marks;
    };

    const Case cases[] = {
        {{}, u"oak"_s, {}},
        {u"oak"_s, u"Oak, soaked"_s, {{0, 3}, {6, 3}}},
        {u"18 oak"_s, u"oak 18"_s, {{0, 3}, {4, 2}}},
        {u"paulo sao"_s, u"S\u00e3o Paulo"_s, {{0, 3}, {4, 5}}},
        {u"cafe"_s, u"a cafe\u0301"_s, {{2, 5}}}, // A letter with its accent.
        {u"strasse"_s, u"Stra\u00dfe"_s, {{0, 6}}},
        {u"aa"_s, u"aaa"_s, {{0, 2}}},
        {u"type:text oak"_s, u"oak"_s, {{0, 3}}},
    };
    for (const Case& c : cases) {
        StoreData data;
        data.clips = {clip(c.text, Seconds(60))};
        PanelWorld world(data);
        ClipListModel model(world.store, world.scheduler, english);
        model.setSearch(c.search);
        ASSERT_EQ(model.count(), 1) << qPrintable(c.search);
        EXPECT_EQ(model.data(model.index(0), ClipListModel::marksRole).value<QList<TextRange>>(),
                  c.marks)
            << qPrintable(c.search);
    }
}

TEST(ClipListModel, findsTheSameAsAPlainSearchAtEveryKeystroke) {
    std::mt19937 random(7); // NOLINT(*-msc51-cpp): the same texts each time.
    const auto word = [&random](qsizetype max) {
        QString text(static_cast<qsizetype>(random() % (max + 1)), u'a');
        for (QChar& letter : text) {
            letter = u"abAB@{"_s[static_cast<qsizetype>(random() % 6)];
        }
        return text;
    };
    StoreData data;
    for (int i = 0; i < 40; ++i) {
        data.clips.append(clip(word(200), Seconds(60)));
    }
    PanelWorld world(data);
    ClipListModel model(world.store, world.scheduler, english);
    for (int round = 0; round < 20; ++round) {
        const QString wanted = word(8);
        for (qsizetype step = 1; step < 2 * wanted.size(); ++step) {
            const QString typed = wanted.first(wanted.size() - std::abs(wanted.size() - step));
            model.setSearch(typed);
            QList<QUuid> expected;
            for (const ClipItem& clip : world.store.clips()) {
                if (clip.text.contains(typed, Qt::CaseInsensitive)) {
                    expected.append(clip.id);
                }
            }
            ASSERT_EQ(Mirror(model).ids, expected) << qPrintable(typed);
        }
    }
}

QList<TextRange> marksOf(const ClipListModel& model, int row) {
    return model.data(model.index(row), ClipListModel::marksRole).value<QList<TextRange>>();
}

StoreData longHistory() {
    StoreData data;
    for (int i = 0; i < 8; ++i) {
        data.clips.append(clip(QString(1 << 19, u'a'), Seconds(60)));
    }
    data.clips.append(clip(u"found"_s, Seconds(60)));
    return data;
}

TEST(ClipListModel, searchesALongHistoryInPortions) {
    const auto advance = [](PanelWorld& world, ClipListModel&) {
        world.scheduler.advance(Seconds(0));
    };
    const auto finish = [](PanelWorld&, ClipListModel& model) {
        model.finishSearch();
    };
    const auto copy = [](PanelWorld& world, ClipListModel&) {
        world.store.addClip(u"found, too"_s);
        world.scheduler.advance(Seconds(0));
    };

    struct Case {
        const char* what;
        std::function<void(PanelWorld&, ClipListModel&)> then;
        int found;
    };

    const Case cases[] = {{"time passes", advance, 1},
                          {"a key refers to the rows", finish, 1},
                          {"a clip comes meanwhile", copy, 2}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        PanelWorld world(longHistory());
        ClipListModel model(world.store, world.scheduler, english);
        int searched = 0;
        QObject::connect(&model, &ClipListModel::searched, &model, [&] { ++searched; });
        model.setSearch(u"found"_s);
        EXPECT_EQ(model.count(), 9) << "the rows stay until the search is done";
        EXPECT_EQ(marksOf(model, 8), QList<TextRange>()) << "of a search that is not done";
        EXPECT_EQ(searched, 0);
        c.then(world, model);
        EXPECT_EQ(model.count(), c.found);
        EXPECT_EQ(marksOf(model, 0), QList<TextRange>({{0, 5}}));
        EXPECT_EQ(searched, 1);
        world.scheduler.advance(Seconds(1));
        EXPECT_EQ(searched, 1) << "it is not searched again";
    }
}

TEST(ClipListModel, aSearchThatIsNotDoneIsReplacedByTheNext) {
    PanelWorld world(longHistory());
    ClipListModel model(world.store, world.scheduler, english);
    model.setSearch(u"nothing"_s);
    model.setSearch(u"foun"_s);
    model.finishSearch();
    EXPECT_EQ(model.count(), 1);
    model.setSearch(u"nothing"_s);
    model.setSearch({});
    EXPECT_EQ(model.count(), 9);
    world.scheduler.advance(Seconds(1));
    EXPECT_EQ(model.count(), 9);
}

TEST(ClipListModel, listsAClipCopiedDuringASearchOnlyIfItMatches) {
    PanelWorld world(fiveClips());
    ClipListModel model(world.store, world.scheduler, english);
    model.setSearch(u"f"_s);
    world.store.addClip(u"six"_s);
    world.store.addClip(u"fifty"_s);
    ASSERT_EQ(model.count(), 3);
    EXPECT_EQ(model.data(model.index(0), ClipListModel::titleRole), u"fifty"_s);
}

} // namespace

} // namespace ravelo
