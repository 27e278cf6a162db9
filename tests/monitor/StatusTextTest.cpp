#include "monitor/StatusText.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Date utc(const char* time) {
    return toDate(QDateTime::fromString(QString::fromLatin1(time), Qt::ISODate));
}

const Date offPeak = utc("2026-01-05T10:00:00Z");
const Date inPeak = utc("2026-01-05T15:00:00Z");

MonitorStatus session(Date now) {
    return {u"Opus 4.6"_s,
            41500,
            1000000,
            utc("2026-01-05T09:30:00Z"),
            PeakInfo::at(now),
            {UsageWindow{41.5, Date{now.sinceReference + 7500}}, UsageWindow{78, {}}}};
}

TEST(Status, isPrintedAsTextAndJson) {
    struct Case {
        const char* name;
        Date now;
        MonitorStatus status;
        QString text;
        QByteArray json;
    };

    const Case cases[] = {
        {"aSessionOffPeak", offPeak, session(offPeak),
         u"Opus 4.6 · 42k / 1.0M · OFF-PEAK · peak in 3h 0m · 5h 42% · week 78%\n"_s,
         R"({"isPeak":false,"lastActivity":"2026-01-05T09:30:00Z","limit":1000000,)"
         R"("model":"Opus 4.6","peak":"OFF-PEAK · peak in 3h 0m",)"
         R"("session":{"pct":41.5,"resets":"2026-01-05T12:05:00Z"},"used":41500,)"
         R"("week":{"pct":78,"resets":null}})"
         "\n"},
        {"aWindowThatHasReset",
         offPeak,
         {{}, 0, 1000000, {}, PeakInfo::at(offPeak), {UsageWindow{41.5, offPeak}, {}}},
         u"OFF-PEAK · peak in 3h 0m · 5h 42% · week —\n"_s,
         R"({"isPeak":false,"lastActivity":null,"limit":1000000,"model":"",)"
         R"("peak":"OFF-PEAK · peak in 3h 0m","session":{"pct":41.5,)"
         R"("resetPassed":true,"resets":"2026-01-05T10:00:00Z"},"used":0,"week":null})"
         "\n"},
        {"nothingYetInPeak",
         inPeak,
         {{}, 0, 1000000, {}, PeakInfo::at(inPeak), {}},
         u"PEAK · ends 7:00 PM · 5h — · week —\n"_s,
         R"({"isPeak":true,"lastActivity":null,"limit":1000000,"model":"",)"
         R"("peak":"PEAK · ends 7:00 PM","session":null,"used":0,"week":null})"
         "\n"},
        {"nonsense",
         inPeak,
         {u"M"_s, 1, -500, {}, PeakInfo::at(inPeak), {UsageWindow{1e300, Date{1e300}}, {}}},
         u"M · 0k / -1k · PEAK · ends 7:00 PM · 5h 1000000000000000% · week —\n"_s,
         R"({"isPeak":true,"lastActivity":null,"limit":-500,"model":"M",)"
         R"("peak":"PEAK · ends 7:00 PM","session":{"pct":1e+300,"resets":null},)"
         R"("used":1,"week":null})"
         "\n"},
    };
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QTimeZone zone = QTimeZone::utc();
    for (const Case& c : cases) {
        EXPECT_EQ(statusLine(c.status, c.now, english, zone).toStdString(), c.text.toStdString())
            << c.name;
        EXPECT_EQ(statusJson(c.status, c.now, english, zone).toStdString(), c.json.toStdString())
            << c.name;
    }
}

} // namespace

} // namespace ravelo
