#include "app/CommandLine.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Kind = Command::Kind;
using IfNoneRuns = Command::IfNoneRuns;
using Arguments = QList<QByteArray>;

std::string printed(const Arguments& arguments) {
    return arguments.join(" | ").toStdString();
}

TEST(CommandLine, IsUnderstood) {
    const auto asks = [](const QStringList& request) {
        return Command{Kind::ask, request, {}, IfNoneRuns::fail};
    };
    const auto parks = [](const Arguments& files) {
        return Command{Kind::ask, {u"open"_s}, files, IfNoneRuns::startAndAsk};
    };

    struct Case {
        Arguments arguments;
        Command command;
    };

    const Case cases[] = {
        {{}, {Kind::ask, {u"show"_s}, {}, IfNoneRuns::start}},
        {{"-session", "1_2"}, {Kind::ask, {u"restore"_s}, {}, IfNoneRuns::start}},
        {{"--toggle"}, {Kind::ask, {u"toggle"_s}, {}, IfNoneRuns::startAndAsk}},
        {{"--settings"}, {Kind::ask, {u"settings"_s}, {}, IfNoneRuns::startAndAsk}},
        {{"--take-over"},
         {Kind::ask, {u"show"_s}, {}, IfNoneRuns::start, DataLock::Claim::takeOver}},
        {{"--setup"}, {Kind::ask, {u"setup"_s}, {}, IfNoneRuns::startAndAsk}},
        {{"--updates"}, {Kind::ask, {u"updates"_s}, {}, IfNoneRuns::startAndAsk}},
        {{"--quit"}, asks({u"quit"_s})},
        {{"--status=json"}, {Kind::ask, {u"status"_s, u"--json"_s}, {}, IfNoneRuns::readFiles}},
        {{"--status=tmux"}, {Kind::ask, {u"status"_s, u"--tmux"_s}, {}, IfNoneRuns::readFiles}},
        {{"--store-usage"}, {Kind::storeUsage, {}, {}, {}}},
        {{"--store-usage", "--print"}, {Kind::storeUsage, {u"--print"_s}, {}, {}}},
        {{"-h"}, {Kind::showHelp, {}, {}, {}}},
        {{"--version"}, {Kind::showVersion, {}, {}, {}}},
        {{"timer", "stop"}, asks({u"timer"_s, u"stop"_s})},
        {{"timer", "start", "0.5", "--json", "ü"},
         asks({u"timer"_s, u"start"_s, u"0.5"_s, u"--json"_s, u"ü"_s})},
        {{"shelf", "list", "-0"}, asks({u"shelf"_s, u"list"_s, u"-0"_s})},
        {{"export", "/a/b.tar"}, asks({u"export"_s, u"/a/b.tar"_s})},
        {{"import", "b.tar"}, asks({u"import"_s, QDir::currentPath() + u"/b.tar"_s})},
        {{"erase", "--yes"}, {Kind::ask, {u"erase"_s, u"--yes"_s}, {}, IfNoneRuns::erase}},
        {{"a", "b\xff", "file:///c"}, parks({"a", "b\xff", "file:///c"})},
        {{"--", "timer", "-x", "--"}, parks({"timer", "-x", "--"})},
        {{"./timer", "--", "--quit"}, parks({"./timer", "--quit"})},
        {{"open"}, parks({"open"})},
    };
    for (const Case& c : cases) {
        const auto command = parseCommandLine(c.arguments);
        ASSERT_TRUE(command) << printed(c.arguments) << ": " << qPrintable(command.error().message);
        EXPECT_EQ(*command, c.command) << printed(c.arguments);
    }
}

TEST(CommandLine, NamesTheInvalidArgument) {
    struct Case {
        Arguments arguments;
        QString named;
    };

    const Case cases[] = {
        {{"--nonsense"}, u"--nonsense"_s},
        {{"-session"}, u"-session"_s},
        {{"--quit", "now"}, u"now"_s},
        {{"--version", "--quiet"}, u"--quiet"_s},
        {{"--quit", "--verbose"}, u"--verbose"_s},
        {{"a", "--toggle"}, u"--toggle"_s},
        {{"--"}, u"no files"_s},
        {{"timer"}, u"timer; there is timer start, timer stop, timer status"_s},
        {{"timer", "pause"}, u"timer pause"_s},
        {{"timer", "start"}, u"needs a number of minutes"_s},
        {{"timer", "start", "soon"}, u"\"soon\""_s},
        {{"timer", "stop", "now"}, u"now"_s},
        {{"timer", "status", "--null"}, u"--null"_s},
        {{"shelf", "list", "--json", "-0"}, u"-0"_s},
    };
    for (const Case& c : cases) {
        const auto command = parseCommandLine(c.arguments);
        ASSERT_FALSE(command) << printed(c.arguments);
        EXPECT_TRUE(command.error().message.contains(c.named))
            << qPrintable(command.error().message);
    }
}

} // namespace

} // namespace ravelo
