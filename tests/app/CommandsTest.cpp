#include "app/Commands.h"

#include "base/FileUrl.h"
#include "fakes/PanelWorld.h"
#include "fakes/UsageWorld.h"
#include "monitor/LiveContext.h"
#include "platform/system/InotifyChanges.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class CommandsTest : public testing::Test {
protected:
    [[nodiscard]] Answer answer(const QStringList& request) const {
        return commands_.answer(request);
    }

    [[nodiscard]] QByteArray status(const QStringList& more = {}) const {
        const Answer answer = commands_.answer(QStringList{u"timer"_s, u"status"_s} + more);
        EXPECT_EQ(answer.status, 0);
        return answer.output;
    }

    [[nodiscard]] QByteArray json() const { return status({u"--json"_s}); }

    PanelWorld world_;
    UsageWorld plan_{world_.scheduler, {UsageWindow{41.5, {}}, UsageWindow{78, {}}}};
    LiveContext context_{
        {world_.scheduler, plan_.jobs}, plan_.home(), std::make_unique<InotifyChanges>()};
    int setups_ = 0;
    int looks_ = 0; ///< For updates.
    Commands commands_{{world_.store, world_.pause, world_.controller, world_.scheduler, context_,
                        plan_.usage, [] { return StatusChoice(); },
                        [] { return std::optional<OtherPlan>(); }, [this] { ++setups_; },
                        [this] { ++looks_; }, [] {},
                        [this](const QString& path, const Commands::Reply& reply) {
                            exported_ = path;
                            reply({1, {}, u"a problem"_s});
                        }}};
    QString exported_;
};

TEST_F(CommandsTest, AnswersLaterWhatTakesTime) {
    std::optional<Answer> later;
    const auto reply = [&](const Answer& answer) {
        later = answer;
    };
    EXPECT_TRUE(commands_.answerLater({u"export"_s, u"/x"_s}, reply));
    EXPECT_EQ(exported_, u"/x"_s);
    EXPECT_EQ(later, (Answer{1, {}, u"a problem"_s}));
    for (const QStringList& request :
         {QStringList{u"export"_s}, {u"erase"_s}, {u"erase"_s, u"--no"_s}, {u"show"_s}}) {
        EXPECT_FALSE(commands_.answerLater(request, reply)) << qPrintable(request.join(u' '));
    }
    EXPECT_EQ(answer({u"erase"_s}).status, 2) << "only with --yes";
    EXPECT_EQ(answer({u"import"_s, u"a"_s, u"b"_s}).status, 2);
}

TEST_F(CommandsTest, ReportsTheTimer) {
    const QByteArray none = "{\"duration\":0,\"ends\":null,\"label\":\"\",\"remaining\":0,"
                            "\"running\":false,\"text\":\"\"}\n";
    EXPECT_EQ(status(), "no timer\n");
    EXPECT_EQ(json(), none);

    EXPECT_EQ(answer({u"timer"_s, u"start"_s, u"25"_s, u"Deep"_s, u"work"_s}), Answer());
    world_.scheduler.advance(Seconds(0.25));
    EXPECT_EQ(status(), "24:59 Deep work\n");
    world_.scheduler.advance(Seconds(0.75));
    const QString ends =
        toDateTime({world_.scheduler.now().sinceReference + 1499}).toUTC().toString(Qt::ISODate);
    ASSERT_TRUE(ends.endsWith(u'Z'));
    EXPECT_EQ(json(), "{\"duration\":1500,\"ends\":\"" + ends.toUtf8() +
                          "\",\"label\":\"Deep work\",\"remaining\":1499,\"running\":true,"
                          "\"text\":\"24:59 Deep work\"}\n");

    EXPECT_EQ(answer({u"timer"_s, u"start"_s, u"0.5"_s}), Answer());
    EXPECT_EQ(status(), "00:30\n") << "in place of the other, without a label";
    world_.scheduler.advance(Seconds(30));
    EXPECT_EQ(status(), "no timer\n") << "it has finished";

    EXPECT_EQ(answer({u"timer"_s, u"start"_s, u"90"_s, u"x"_s}), Answer());
    EXPECT_EQ(status(), "1:30:00 x\n");
    EXPECT_EQ(answer({u"timer"_s, u"stop"_s}), Answer());
    EXPECT_EQ(json(), none);
}

TEST_F(CommandsTest, AcceptsAnyLabelAndPrintsItInOneLine) {
    struct Case {
        QString label;
        QString kept;
        QByteArray printed;
    };

    const Case cases[] = {
        {u" a  b\t"_s, u"a  b"_s, " a b"},
        {u"\"'$(id)`\\%s"_s, u"\"'$(id)`\\%s"_s, " \"'$(id)`\\%s"},
        {u"two\nlines"_s, u"two\nlines"_s, " two lines"},
        {u"\x1b[31mred\x07"_s, u"\x1b[31mred\x07"_s, " [31mred"},
        {u"\U0001F345 ü中"_s, u"\U0001F345 ü中"_s, " \U0001F345 ü中"},
        {u""_s, u""_s, ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(answer({u"timer"_s, u"start"_s, u"1"_s, c.label}), Answer());
        EXPECT_EQ(world_.store.timerLabel(), c.kept);
        EXPECT_EQ(status(), "01:00" + c.printed + '\n');
        EXPECT_EQ(json().count('\n'), 1);
    }
}

TEST_F(CommandsTest, PausesCapture) {
    const auto status = [this](const QStringList& more = {}) {
        return answer(QStringList{u"pause"_s, u"--status"_s} + more).output;
    };
    const auto captures = [this] {
        static int copies = 0;
        const QString text = u"copy %1"_s.arg(++copies);
        world_.pasteboard.offerText(text);
        world_.scheduler.advance(Seconds(1));
        return !world_.store.clips().isEmpty() && world_.store.clips().front().text == text;
    };
    world_.clipboard.start();
    EXPECT_EQ(status(), "capturing\n");
    EXPECT_TRUE(captures());

    EXPECT_EQ(answer({u"pause"_s}), Answer());
    EXPECT_EQ(status(), "paused\n");
    EXPECT_EQ(status({u"--json"_s}), "{\"paused\":true,\"remaining\":0,\"until\":null}\n");
    world_.scheduler.advance(Seconds(100'000));
    EXPECT_FALSE(captures());
    EXPECT_EQ(answer({u"resume"_s}), Answer());
    EXPECT_EQ(world_.store.clips().front().text, u"copy 1"_s) << "nothing is made up for";
    EXPECT_TRUE(captures());

    EXPECT_EQ(answer({u"pause"_s, u"0.5"_s}), Answer());
    EXPECT_TRUE(status().startsWith("paused until ")) << status().constData();
    EXPECT_TRUE(status({u"--json"_s}).startsWith("{\"paused\":true,\"remaining\":30,\"until\":\""));
    EXPECT_FALSE(captures());
    EXPECT_TRUE(CapturePause(world_.preferences, world_.scheduler).isPaused()) << "after a restart";
    world_.scheduler.advance(Seconds(30));
    EXPECT_EQ(status(), "capturing\n");
    EXPECT_FALSE(CapturePause(world_.preferences, world_.scheduler).isPaused());
    EXPECT_TRUE(captures());

    EXPECT_EQ(answer({u"ignore-next"_s}), Answer());
    EXPECT_FALSE(captures());
    EXPECT_TRUE(captures());
    EXPECT_EQ(answer({u"ignore-next"_s}), Answer());
    world_.scheduler.advance(Seconds(31));
    EXPECT_TRUE(captures()) << "it has lapsed";
}

TEST_F(CommandsTest, ReportsTheMonitors) {
    world_.scheduler.advance(Seconds(5));
    const QByteArray line = answer({u"status"_s}).output;
    EXPECT_TRUE(line.endsWith(" · 5h 42% · week 78%\n")) << line.constData();
    const QByteArray object = answer({u"status"_s, u"--json"_s}).output;
    EXPECT_TRUE(object.contains("\"pct\":41.5,\"resets\":null}")) << object.constData();
    const QByteArray waybar = answer({u"status"_s, u"--waybar"_s}).output;
    EXPECT_TRUE(waybar.contains("\"text\":\"5h 42% · week 78%\"")) << waybar.constData();
    EXPECT_TRUE(
        answer({u"status"_s, u"--tmux"_s}).output.startsWith("#[fg=green]5h 42%#[default]"));
}

TEST_F(CommandsTest, RefusesInvalidRequests) {
    EXPECT_EQ(answer({u"timer"_s, u"start"_s, u".5"_s, u"kept"_s}), Answer());
    for (const char* minutes : {"", "soon", "0", "0.0", "-1", "+1", "1,5", "1.5.5", "1e2", "0x10",
                                "nan", "inf", " 1", "1\n", "1m", "99999999", "٣"}) {
        const Answer refused = answer({u"timer"_s, u"start"_s, QString::fromUtf8(minutes)});
        EXPECT_EQ(refused.status, 2) << minutes;
        EXPECT_TRUE(refused.errors.contains(u'"' + QString::fromUtf8(minutes) + u'"'));
    }
    const QList<QStringList> requests = {
        {},
        {u""_s},
        {u"timer"_s},
        {u"timer start 1"_s},
        {u"open"_s},
        {u"quit"_s, u"now"_s},
        {u"show!"_s},
        {u"timer"_s, u"stop"_s, u"--now"_s},
        {u"pause"_s, u"soon"_s},
        {u"pause"_s, u"5"_s, u"6"_s},
        {u"pause"_s, u"--status"_s, u"5"_s},
        {u"resume"_s, u"5"_s},
        {u"status"_s, u"json"_s},
        {u"status"_s, u"--tmux"_s, u"--json"_s},
    };
    for (const QStringList& request : requests) {
        EXPECT_EQ(answer(request).status, 2) << qPrintable(request.join(u' '));
    }
    EXPECT_EQ(status(), "00:30 kept\n");
    EXPECT_FALSE(world_.controller.isOpen());
}

TEST_F(CommandsTest, ParksFilesAndListsThem) {
    const int tick = world_.store.shelfRequestTick();
    EXPECT_EQ(answer({u"open"_s, u"/a\nb"_s, u"file:///ü%20%23"_s, u"/ü #"_s}), Answer());
    EXPECT_TRUE(world_.controller.isOpen());
    EXPECT_EQ(world_.store.shelfRequestTick(), tick + 1) << "the shelf is shown";

    const Answer partly = answer({u"open"_s, u"c"_s, u"http://x/y"_s, u"/d"_s});
    EXPECT_EQ(partly.status, 1);
    EXPECT_EQ(partly.errors, u"no file of this machine: c\nno file of this machine: http://x/y"_s);
    EXPECT_EQ(answer({u"open"_s, u"/d"_s}), Answer()) << "there already";

    const auto list = [this](const QStringList& more) {
        return answer(QStringList{u"shelf"_s, u"list"_s} + more).output;
    };
    EXPECT_EQ(list({}), "/a\nb\n/ü #\n/d\n");
    EXPECT_EQ(list({u"-0"_s}), QByteArray("/a\nb\0/ü #\0/d\0", 14));
    EXPECT_EQ(list({u"--json"_s}),
              "{\"files\":[{\"path\":\"/a\\nb\",\"selected\":true,\"stack\":0},"
              "{\"path\":\"/ü #\",\"selected\":true,\"stack\":0},"
              "{\"path\":\"/d\",\"selected\":true,\"stack\":1}]}\n");
}

TEST_F(CommandsTest, ListsPathsThatAreNotUtf8) {
    world_.store.addToShelf({fileUrl("/\xe4 b")});
    EXPECT_EQ(answer({u"shelf"_s, u"list"_s}).output, "/\xe4 b\n");
    EXPECT_EQ(answer({u"shelf"_s, u"list"_s, u"--null"_s}).output, QByteArray("/\xe4 b\0", 5));
    EXPECT_EQ(answer({u"shelf"_s, u"list"_s, u"--json"_s}).output,
              "{\"files\":[{\"path\":\"/\uFFFD b\",\"selected\":true,\"stack\":0,"
              "\"uri\":\"file:///%E4%20b\"}]}\n");
}

TEST_F(CommandsTest, LimitsTheNumberOfFiles) {
    QStringList request = {u"open"_s};
    for (int i = 0; i < 1000; ++i) {
        request.append(u"/%1"_s.arg(i));
    }
    EXPECT_EQ(answer(request), Answer());
    EXPECT_EQ(world_.store.shelf().files().size(), 1000);
    const Answer refused = answer(request + QStringList{u"/more"_s});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.errors, u"1001 files are too many at once, 1000 is the limit"_s);
    const Answer tooLong = answer({u"open"_s, u'/' + QString(5000, u'x')});
    EXPECT_EQ(tooLong.status, 1);
    EXPECT_TRUE(tooLong.errors.startsWith(u"its path is too long: /xxx"_s) &&
                tooLong.errors.size() < 600)
        << qPrintable(tooLong.errors);
    EXPECT_EQ(world_.store.shelf().files().size(), 1000);
}

TEST_F(CommandsTest, OpensTheOtherWindows) {
    const SignalCount settings(&world_.controller, &NotchController::settingsRequested);
    EXPECT_EQ(answer({u"restore"_s}), Answer());
    EXPECT_FALSE(world_.controller.isOpen()) << "at the start of a session";
    EXPECT_EQ(answer({u"show"_s}), Answer());
    EXPECT_EQ(answer({u"setup"_s}), Answer());
    EXPECT_EQ(setups_, 1);
    EXPECT_EQ(answer({u"updates"_s}), Answer());
    EXPECT_EQ(looks_, 1);
    EXPECT_TRUE(world_.controller.isOpen());
    EXPECT_EQ(answer({u"settings"_s}), Answer());
    EXPECT_EQ(settings.count(), 1);
    EXPECT_FALSE(world_.controller.isOpen()) << "it would lie above them";
}

TEST_F(CommandsTest, TogglePassesOnTheActivationToken) {
    EXPECT_EQ(commands_.answer({u"toggle"_s}, "token"), Answer());
    EXPECT_TRUE(world_.window.focused);
    EXPECT_EQ(world_.window.activationToken, "token");
}

} // namespace

} // namespace ravelo
