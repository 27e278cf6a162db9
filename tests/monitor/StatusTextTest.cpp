#include "monitor/StatusText.h"

#include "monitor/BarText.h"

#include <QCoreApplication>
#include <QTranslator>

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
            {UsageWindow{41.5, Date{now.sinceReference + 7500}}, UsageWindow{78, {}}},
            u"larkspur"_s,
            HandedOver{u"Opus"_s, u"3f41"_s, u"larkspur"_s, 200000, 15500, 0.5,
                       Date{now.sinceReference - 40}},
            {Pace{30, 30, Date{now.sinceReference + 7020}}, Pace{1, 24, {}}},
            Date{now.sinceReference - 60}};
}

TEST(Status, isPrintedAsTextAndJson) {
    struct Case {
        const char* name;
        Date now;
        MonitorStatus status;
        QString text;
        QByteArray json;
    };

    const QByteArray noneHanded = R"("window":null,"windowAge":null,"windowModel":"",)"
                                  R"("windowProject":"","windowUsed":null)";
    const Case cases[] = {
        {"aSessionOffPeak", offPeak, session(offPeak),
         u"Opus 4.6 · 42k / 1.0M · OFF-PEAK · peak in 3h 0m · 5h 42% · week 78%\n"_s,
         R"({"age":1800,"cost":0.5,)"
         R"("isPeak":false,"lastActivity":"2026-01-05T09:30:00Z","limit":1000000,)"
         R"("model":"Opus 4.6","peak":"OFF-PEAK · peak in 3h 0m","planAge":60,)"
         R"("project":"larkspur","session":{"fullAt":"2026-01-05T11:57:00Z","pace":30,)"
         R"("pct":41.5,"resets":"2026-01-05T12:05:00Z"},"used":41500,)"
         R"("week":{"fullAt":null,"pace":1,"pct":78,"resets":null},"window":200000,)"
         R"("windowAge":40,"windowModel":"Opus","windowProject":"larkspur","windowUsed":15500})"
         "\n"},
        {"aWindowThatHasReset",
         offPeak,
         {{}, 0, 1000000, {}, PeakInfo::at(offPeak), {UsageWindow{41.5, offPeak}, {}}},
         u"OFF-PEAK · peak in 3h 0m · 5h 42% · week —\n"_s,
         R"({"age":null,"cost":null,"isPeak":false,"lastActivity":null,"limit":1000000,"model":"",)"
         R"("peak":"OFF-PEAK · peak in 3h 0m","planAge":null,"project":"",)"
         R"("session":{"fullAt":null,"pace":null,"pct":41.5,)"
         R"("resetPassed":true,"resets":"2026-01-05T10:00:00Z"},"used":0,"week":null,)" +
             noneHanded +
             R"(})"
             "\n"},
        {"nothingYetInPeak",
         inPeak,
         {{}, 0, 1000000, {}, PeakInfo::at(inPeak), {}},
         u"PEAK · ends 7:00 PM · 5h — · week —\n"_s,
         R"({"age":null,"cost":null,"isPeak":true,"lastActivity":null,"limit":1000000,"model":"",)"
         R"("peak":"PEAK · ends 7:00 PM","planAge":null,"project":"","session":null,"used":0,)"
         R"("week":null,)" +
             noneHanded +
             R"(})"
             "\n"},
        {"nonsense",
         inPeak,
         {u"M"_s, 1, -500, {}, PeakInfo::at(inPeak), {UsageWindow{1e300, Date{1e300}}, {}}},
         u"M · 0k / -1k · PEAK · ends 7:00 PM · 5h 1000000000000000% · week —\n"_s,
         R"({"age":null,"cost":null,"isPeak":true,"lastActivity":null,"limit":-500,"model":"M",)"
         R"("peak":"PEAK · ends 7:00 PM","planAge":null,"project":"",)"
         R"("session":{"fullAt":null,"pace":null,"pct":1e+300,"resets":null},)"
         R"("used":1,"week":null,)" +
             noneHanded +
             R"(})"
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

TEST(Status, followsTheUsersChoice) {
    const MonitorStatus status = session(offPeak);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QTimeZone zone = QTimeZone::utc();
    const auto line = [&](const MonitorStatus& of, const StatusChoice& choice) {
        return statusLine(of, offPeak, english, zone, choice).toStdString();
    };
    EXPECT_EQ(line(status, {false, false}), "Opus 4.6 · 42k / 1.0M · 5h 42% · week 78%\n");
    EXPECT_EQ(line(MonitorStatus(), {false, false}), "5h — · week —\n");
    EXPECT_EQ(line(status, {false, true}), "Opus · 16k / 200k · 5h 42% · week 78%\n");
    MonitorStatus old = status;
    old.handed->at = Date{status.lastActivity->sinceReference - 61};
    EXPECT_EQ(line(old, {false, true}), "Opus 4.6 · 42k / 1.0M · 5h 42% · week 78%\n");

    EXPECT_EQ(contextDetails(status, offPeak, zone),
              QStringList({u"larkspur · 09:30"_s, u"5h session: at this pace full at 11:55"_s}));
    EXPECT_EQ(contextDetails(MonitorStatus(), offPeak, zone), QStringList());
    MonitorStatus two;
    two.second = OtherPlan{u"work"_s, {UsageWindow{5, {}}, {}}, {}, offPeak};
    EXPECT_EQ(contextDetails(two, offPeak, zone), QStringList{u"work: 5h 5% · week —"_s});
    EXPECT_TRUE(statusJson(two, offPeak, english, zone)
                    .contains(R"("second":{"name":"work","planAge":0,"session":{"fullAt":null,)"));
}

class Marking : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* /*context*/, const char* source,
                                    const char* /*note*/, int /*count*/) const override {
        return source == QByteArrayView("en") ? u"de"_s : u'*' + QString::fromUtf8(source);
    }
};

TEST(Status, isTranslatedForTheInterfaceOnly) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QTimeZone zone = QTimeZone::utc();
    MonitorStatus status = session(offPeak);
    status.project.clear();
    status.lastActivity = utc("2025-12-31T09:30:00Z");
    status.pace.week->fullAt = utc("2026-01-08T10:00:00Z");
    const auto printed = [&] {
        return statusJson(status, offPeak, english, zone) +
               waybarText(status, offPeak, english, {}, zone) +
               statusJson(session(inPeak), inPeak, english, zone);
    };
    const QByteArray before = printed();
    Marking marking;
    QCoreApplication::installTranslator(&marking);
    EXPECT_EQ(printed(), before) << "scripts read it";
    const StatusChoice shown{true, false, Wording::translated};
    EXPECT_EQ(contextLine(status, offPeak, english, zone, shown),
              u"Opus 4.6 · 42k / 1.0M · *OFF-PEAK · peak in 3h 0m"_s);
    EXPECT_EQ(contextDetails(status, offPeak, zone, shown),
              QStringList({u"*Last activity 31 Dez., 09:30"_s,
                           u"*5h session: *at this pace full at 11:55"_s,
                           u"*Week: *at this pace full on Do."_s}));
    QCoreApplication::removeTranslator(&marking);
}

TEST(Status, isPrintedForBars) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const auto waybar = [&](const MonitorStatus& status) {
        return waybarText(status, offPeak, english, {}, QTimeZone::utc()).toStdString();
    };
    MonitorStatus status = session(offPeak);
    EXPECT_EQ(waybar(status),
              R"({"class":"warn","percentage":78,"text":"5h 42% 2h 5m · week 78%",)"
              R"("tooltip":"5h session 42% · resets in 2h 5m\nWeek 78%\n)"
              R"(Opus 4.6 · 42k / 1.0M · OFF-PEAK · peak in 3h 0m\nlarkspur · 09:30\n)"
              R"(5h session: at this pace full at 11:55"})"
              "\n");
    EXPECT_EQ(tmuxText(status, offPeak, {}).toStdString(),
              "#[fg=green]5h 42%#[default] 2h 5m #[fg=yellow]week 78%#[default] 42k/1.0M\n");
    EXPECT_EQ(tmuxText(MonitorStatus(), offPeak, {}).toStdString(),
              "#[fg=green]5h —#[default] #[fg=green]week —#[default]\n");

    const std::pair<PlanWindows, const char*> classes[] = {
        {{}, R"("class":"ok","percentage":0,)"},
        {{UsageWindow{59.9, {}}, {}}, R"("class":"ok","percentage":60,)"},
        {{UsageWindow{60, {}}, UsageWindow{5, {}}}, R"("class":"warn","percentage":60,)"},
        {{UsageWindow{5, {}}, UsageWindow{130, {}}}, R"("class":"critical","percentage":100,)"},
        {{UsageWindow{99, offPeak}, {}}, R"("class":"ok","percentage":0,)"}, // It has reset.
    };
    for (const auto& [plan, expected] : classes) {
        status.plan = plan;
        EXPECT_NE(waybar(status).find(expected), std::string::npos) << waybar(status);
    }
}

} // namespace

} // namespace ravelo
