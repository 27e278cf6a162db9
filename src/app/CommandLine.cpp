#include "app/CommandLine.h"

#include "app/Commands.h"

#include <QHash>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Kind = Command::Kind;
using IfNoneRuns = Command::IfNoneRuns;

Result<Command> parseOption(const QList<QByteArray>& arguments) {
    static const QHash<QByteArray, Command> options = {
        {"--toggle", {Kind::ask, {u"toggle"_s}, {}, IfNoneRuns::startAndAsk}},
        {"--settings", {Kind::ask, {u"settings"_s}, {}, IfNoneRuns::startAndAsk}},
        {"--setup", {Kind::ask, {u"setup"_s}, {}, IfNoneRuns::startAndAsk}},
        {"--updates", {Kind::ask, {u"updates"_s}, {}, IfNoneRuns::startAndAsk}},
        {"--take-over", {Kind::ask, {u"show"_s}, {}, IfNoneRuns::start, DataLock::Claim::takeOver}},
        {"--quit", {Kind::ask, {u"quit"_s}, {}, IfNoneRuns::fail}},
        {"--status", {Kind::ask, {u"status"_s}, {}, IfNoneRuns::readFiles}},
        {"--status=json", {Kind::ask, {u"status"_s, u"--json"_s}, {}, IfNoneRuns::readFiles}},
        {"--store-usage", {Kind::storeUsage, {}, {}, {}}},
        {"--help", {Kind::showHelp, {}, {}, {}}},
        {"-h", {Kind::showHelp, {}, {}, {}}},
        {"--version", {Kind::showVersion, {}, {}, {}}},
        {"-v", {Kind::showVersion, {}, {}, {}}},
    };
    const auto found = options.constFind(arguments.first());
    if (found == options.cend()) {
        return failure(u"unknown argument: "_s + QString::fromUtf8(arguments.first()));
    }
    if (arguments.size() > 1) {
        return failure(u"one argument is enough: "_s + QString::fromUtf8(arguments.at(1)));
    }
    return found.value();
}

Result<Command> parseWords(const QList<QByteArray>& arguments) {
    Command command;
    for (const QByteArray& argument : arguments) {
        command.request.append(QString::fromUtf8(argument));
    }
    return Commands::check(command.request).map([&] { return command; });
}

Result<Command> parseFiles(const QList<QByteArray>& arguments) {
    Command command{Kind::ask, {u"open"_s}, {}, IfNoneRuns::startAndAsk};
    bool onlyFiles = false;
    for (const QByteArray& argument : arguments) {
        if (!onlyFiles && argument == "--") {
            onlyFiles = true;
        } else if (!onlyFiles && argument.startsWith('-')) {
            return failure(u"unknown argument: "_s + QString::fromUtf8(argument));
        } else {
            command.files.append(argument);
        }
    }
    return command.files.isEmpty() ? failure(u"no files"_s) : Result<Command>(command);
}

} // namespace

Result<Command> parseCommandLine(const QList<QByteArray>& arguments) {
    if (arguments.isEmpty()) {
        return Command{Kind::ask, {u"show"_s}, {}, IfNoneRuns::start};
    }
    const QByteArray& first = arguments.first();
    // So a session manager starts a program that ran when the session was saved (XSMP).
    if (first == "-session" && arguments.size() == 2) {
        return Command{Kind::ask, {u"restore"_s}, {}, IfNoneRuns::start};
    }
    if (first == "timer" || first == "shelf") {
        return parseWords(arguments);
    }
    return first.startsWith('-') && first != "--" ? parseOption(arguments) : parseFiles(arguments);
}

QString helpText() {
    return uR"(Usage: ravelo [OPTION]
       ravelo [--] FILE...
       ravelo timer start MINUTES [LABEL]
       ravelo timer stop
       ravelo timer status [--json]
       ravelo shelf list [--null | --json]

Clipboard history, snippets and a quick note in a panel at the top centre of the
screen. Move the pointer there to open it; click elsewhere to close it.

  --toggle       open the panel, or close it; starts Ravelo where it is not running
  --settings     open the settings; starts Ravelo where it is not running
  --setup        go through the first-run setup again; starts it likewise
  --updates      look for a newer version; starts it likewise
  --take-over    start though another machine that shares this home, or another
                 session, seems to use the data; a Ravelo there stops saving
  --quit         end the running Ravelo
  --status       one line on Claude Code: model, context used / limit, peak hours,
                 and how much of the plan's five-hour and weekly windows is used;
                 where no Ravelo runs, as far as files tell it
  --status=json  the same as one object: model, used and limit in tokens,
                 lastActivity, peak, isPeak, session and week. These two are null
                 or have pct, from 0 to 100, and resets; dates are ISO 8601 or null
  --store-usage  keep what standard input tells of the plan's usage, in the form in
                 which Claude Code tells its status line
  -h, --help     show this help
  -v, --version  show the version

Started a second time, Ravelo opens the panel of the one that is running.

  FILE...        park the files, or file:// addresses, on the shelf and show it;
                 starts Ravelo where it is not running. Names that begin with a
                 dash go after --, and so do files called "timer" or "shelf"

The rest speaks to the Ravelo that is running:

  timer start    start the focus timer in place of the one that runs; MINUTES may
                 be a number like 0.5
  timer stop     stop it
  timer status   one line, like "24:59 Deep work", or "no timer"; with --json one
                 object: running, label, remaining and duration in seconds, ends
                 (ISO 8601, UTC), text. Where none runs ends is null, the texts
                 are empty and the numbers 0
  shelf list     the paths of the parked files, a line each; with -0 or --null each
                 ends with a NUL byte; with --json one object: files, an array of
                 objects with path, stack (counted from 0) and selected, and
                 with uri if the path is not UTF-8

The exit status is 0 where it is done, 1 where it could not be done or no Ravelo
is running, 2 where the command makes no sense.

It needs an X11 session, or GNOME with its extension, which the settings offer to
turn on. In other Wayland sessions, and on GNOME without the extension, it runs
through XWayland, with less: not all copies may be seen, the panel opens only under
a pointer or a drag on its own handle and closes when the pointer leaves it, and
the compositor may give it no keyboard to type with.
)"_s;
}

QString versionText() {
    return u"Ravelo " RAVELO_VERSION "\n"_s;
}

} // namespace ravelo
