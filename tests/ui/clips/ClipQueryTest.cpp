#include "ui/clips/ClipQuery.h"
#include "fakes/PanelWorld.h"
#include "ui/preview/ClipColor.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(ClipQuery, filtersAndThenText) {
    const Date now = toDate(QDateTime(QDate(2026, 3, 31), QTime(15, 0)));
    const auto before = [now](double hours) {
        return Date{now.sinceReference - hours * 3600};
    };
    const QList<ClipItem> clips = {
        {QUuid(), u"oak"_s, ClipKind::text, before(1), false, {}},
        {QUuid(), u"https://oak.example"_s, ClipKind::url, before(20), false, {}},
        {QUuid(), u"Image"_s, ClipKind::image, before(30), false, u"a.png"_s},
        {QUuid(), u" #2F6F62 "_s, ClipKind::text, before(24 * 8), false, {}},
    };

    const QList<ClipDetails> details = {
        {u"Kate"_s}, {u"org.mozilla.firefox"_s}, {u"Gimp"_s}, {u"Thunar"_s, {}, 2}};

    struct Case {
        QString written;
        QList<int> accepted;
        QString text;
        QString nothingFound;
    };

    const Case cases[] = {
        {{}, {0, 1, 2, 3}, {}, {}},
        {u"oak"_s, {0, 1, 2, 3}, u"oak"_s, u"Nothing has “oak”"_s},
        {u"type:text"_s, {0, 3}, {}, u"No texts"_s},
        {u"TYPE:Link  oak "_s, {1}, u" oak "_s, u"No link has “ oak ”."_s},
        {u"type:image alcove"_s, {2}, u"alcove"_s, u"No image has “alcove”."_s},
        {u"type:color"_s, {3}, {}, u"No colors"_s},
        {u"type:files"_s, {3}, {}, u"No files"_s},
        {u"app:fireFOX "_s, {1}, {}, u"Nothing from “firefox”"_s},
        {u"app:a type:text x"_s, {0, 3}, u"x"_s, u"No text has “x”."_s},
        {u"app:"_s, {0, 1, 2, 3}, u"app:"_s, u"Nothing has “app:”"_s},
        {u"re:"_s, {0, 1, 2, 3}, {}, {}},
        {u"type:text re:o a"_s, {0, 3}, {}, u"Nothing matches"_s},
        {u"re: oak"_s, {0, 1, 2, 3}, u"re: oak"_s, u"Nothing has “re: oak”"_s},
        {u"re:(oak"_s, {0, 1, 2, 3}, {}, u"A bracket is not closed, at character 1"_s},
        {u"after:today"_s, {0}, {}, u"Nothing from this time"_s},
        {u"before:7d type:text x"_s, {3}, u"x"_s, u"No text has “x”."_s},
        {u"after:12h"_s, {0}, {}, u"Nothing from this time"_s},
        {u"before:2026-03-31"_s, {1, 2, 3}, {}, u"Nothing from this time"_s},
        {u"type:imgae alcove"_s,
         {0, 1, 2, 3},
         u"type:imgae alcove"_s,
         u"Nothing has “type:imgae alcove”"_s},
        {u"oak type:text"_s, {0, 1, 2, 3}, u"oak type:text"_s, u"Nothing has “oak type:text”"_s},
        {u"before:soon"_s, {0, 1, 2, 3}, u"before:soon"_s, u"Nothing has “before:soon”"_s},
        {u"https://a"_s, {0, 1, 2, 3}, u"https://a"_s, u"Nothing has “https://a”"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.written));
        const ClipQuery query = ClipQuery::parse(c.written, now);
        QList<int> accepted;
        for (int i = 0; i < clips.size(); ++i) {
            if (query.accepts(clips[i], details[i])) {
                accepted.append(i);
            }
        }
        EXPECT_EQ(accepted, c.accepted);
        EXPECT_EQ(query.text, c.text);
        EXPECT_EQ(query.nothingFound(), c.nothingFound);
    }
}

TEST(ClipColor, readsWhatStyleSheetsWrite) {
    const std::pair<QString, QString> cases[] = {
        {u"#2F6F62"_s, u"#ff2f6f62"_s},
        {u" #fa0\n"_s, u"#ffffaa00"_s},
        {u"#ffaa0080"_s, u"#80ffaa00"_s},
        {u"#fa08"_s, u"#88ffaa00"_s},
        {u"rgb(47, 111, 98)"_s, u"#ff2f6f62"_s},
        {u"RGB(47 111 98 / 50%)"_s, u"#802f6f62"_s},
        {u"rgba(0,0,0,0.5)"_s, u"#80000000"_s},
        {u"rgb(100%, 0%, 0%)"_s, u"#ffff0000"_s},
        {u"hsl(120deg, 100%, 50%)"_s, u"#ff00ff00"_s},
        {u"#12345"_s, {}},
        {u"#ggg"_s, {}},
        {u"rgb(1,2)"_s, {}},
        {u"rgb(256,0,0)"_s, {}},
        {u"rgb(-1,0,0)"_s, {}},
        {u"hsl(120, 1, 0.5)"_s, {}},
        {u"color: #fff"_s, {}},
        {u"red"_s, {}},
    };
    for (const auto& [text, expected] : cases) {
        const QColor color = colorOf(text);
        EXPECT_EQ(color.isValid() ? color.name(QColor::HexArgb) : QString(), expected)
            << qPrintable(text);
    }
}

} // namespace

} // namespace ravelo
