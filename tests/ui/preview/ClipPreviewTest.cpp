#include "ui/preview/ClipPreview.h"
#include "fakes/PanelWorld.h"

#include "support/Eventually.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

TEST(ClipPreview, showsWhatAClipIs) {
    struct Case {
        ClipItem item;
        ClipPreview::Kind kind;
        QStringList parts; ///< Names and values.
        QString measure;
    };

    const auto url = [](const QString& text) {
        return clip(text, Seconds(1), ClipKind::url);
    };
    const Case cases[] = {
        {clip(u"a"_s, Seconds(1)), ClipPreview::Text, {}, u"1 character"_s},
        {clip(u"one\ntwo\n"_s, Seconds(1)), ClipPreview::Text, {}, u"2 lines, 8 characters"_s},
        {clip(QString(1912, u'x'), Seconds(1)), ClipPreview::Text, {}, u"1,912 characters"_s},
        {clip(u"#2F6F62"_s, Seconds(1)),
         ClipPreview::Color,
         {u"Hex"_s, u"#2F6F62"_s, u"RGB"_s, u"rgb(47, 111, 98)"_s, u"HSL"_s,
          u"hsl(168, 41%, 31%)"_s},
         u"7 characters"_s},
        {clip(u"rgba(0, 0, 0, 0.5)"_s, Seconds(1)),
         ClipPreview::Color,
         {u"Hex"_s, u"#00000080"_s, u"RGB"_s, u"rgb(0, 0, 0, 50%)"_s, u"HSL"_s,
          u"hsl(0, 0%, 0%, 50%)"_s},
         u"18 characters"_s},
        {url(u"https://a.example:8080/b%20c?view=print&x#end"_s),
         ClipPreview::Link,
         {u"Path"_s, u"/b c"_s, u"view"_s, u"print"_s, u"x"_s, u"\u2013"_s, u"Part"_s, u"end"_s},
         u"45 characters"_s},
        {url(u"https://a.example/"_s), ClipPreview::Link, {}, u"18 characters"_s},
        {url(u" https://a.example/"_s), ClipPreview::Link, {}, u"19 characters"_s},
        {url(u"mailto:a@b.example"_s), ClipPreview::Text, {}, u"18 characters"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.item.text.left(40)));
        StoreData data;
        data.clips = {c.item};
        PanelWorld world(data);
        ClipPreview preview(world.store, nullptr, english);
        preview.show(c.item.id);
        EXPECT_EQ(preview.kind(), c.kind);
        QStringList parts;
        for (qsizetype i = 0; i < preview.names().size(); ++i) {
            parts += {preview.names()[i], preview.values()[i]};
        }
        EXPECT_EQ(parts, c.parts);
        EXPECT_EQ(preview.measure(), c.measure);
        world.store.deleteClip(c.item.id);
        EXPECT_EQ(preview.kind(), ClipPreview::None) << "gone";
        EXPECT_EQ(preview.text(), QString());
    }
}

TEST(ClipPreview, givesALongTextInParts) {
    // A surrogate pair lies across the first cut.
    const QString text = QString(19'999, u'x') + u"\U0001F600"_s + QString(25'000, u'y');
    StoreData data;
    data.clips = {clip(text, Seconds(1))};
    PanelWorld world(data);
    ClipPreview preview(world.store, nullptr, english);
    QString shown;
    QObject::connect(&preview, &ClipPreview::appended, &preview,
                     [&shown](const QString& more) { shown += more; });
    preview.show(data.clips.first().id);
    shown = preview.text();
    EXPECT_LT(shown.size(), 20'002);
    EXPECT_FALSE(shown.back().isHighSurrogate());
    while (preview.showMore()) {
    }
    EXPECT_EQ(shown, text);
}

TEST(ClipPreview, showsFilesAndOtherForms) {
    StoreData data;
    data.clips = {clip(u"/x\n/y"_s, Seconds(1)), clip(u"rich"_s, Seconds(2))};
    PanelWorld world(data);
    const QString there = makeFile(world.folder.filePath(u"a b.txt"_s), QByteArray(2500, 'x'));
    const QByteArray list = QUrl::fromLocalFile(there).toEncoded() + "\r\nfile:///nowhere/c\r\n";
    world.store.setForms(data.clips[0].id, {u"org.gnome.Nautilus"_s, {{u"text/uri-list"_s, list}}});
    world.store.setForms(data.clips[1].id, {{},
                                            {{u"text/html"_s, "<b>"},
                                             {u"application/rtf"_s, "{}"},
                                             {u"text/rtf"_s, "{}"},
                                             {u"text/csv"_s, "a"}}});
    world.worker.drain();
    ClipPreview preview(world.store, nullptr, english);
    preview.show(data.clips[0].id);
    EXPECT_TRUE(eventually([&] { return preview.values().value(0) == u"2.4 kB"_s; }));
    EXPECT_EQ(preview.kind(), ClipPreview::Files);
    EXPECT_EQ(preview.names(), QStringList({u"a b.txt"_s, u"c"_s}));
    EXPECT_EQ(preview.values()[1], u"Not there any more"_s);
    EXPECT_EQ(preview.pictures().size(), 2);
    EXPECT_EQ(preview.measure(), u"2 files"_s) << "the size of one is not known";
    EXPECT_EQ(preview.forms(), u"Files"_s);
    EXPECT_EQ(preview.program(), u"Nautilus"_s);
    preview.show(data.clips[1].id);
    EXPECT_EQ(preview.forms(), u"Text, HTML, RTF, Table"_s);
    EXPECT_EQ(preview.kind(), ClipPreview::Text);
    EXPECT_TRUE(preview.pictures().isEmpty());
}

} // namespace

} // namespace ravelo
