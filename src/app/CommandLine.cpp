#include "app/CommandLine.h"

#include "app/Commands.h"
#include "app/DisplayChoice.h"

#include <QDir>
#include <QHash>

#include <algorithm>

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
        {"--status=waybar", {Kind::ask, {u"status"_s, u"--waybar"_s}, {}, IfNoneRuns::readFiles}},
        {"--status=tmux", {Kind::ask, {u"status"_s, u"--tmux"_s}, {}, IfNoneRuns::readFiles}},
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
    if (found->kind == Kind::showVersion && arguments.size() == 2 &&
        arguments.at(1) == "--verbose") {
        return Command{Kind::showDetails, {}, {}, {}};
    }
    if (found->kind == Kind::storeUsage && arguments.size() == 2 && arguments.at(1) == "--print") {
        return Command{Kind::storeUsage, {u"--print"_s}, {}, {}};
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

/// The running program may have another working folder.
Result<Command> parseTransfer(const QList<QByteArray>& arguments) {
    return parseWords(arguments).map([](Command command) {
        command.request[1] = QDir::current().absoluteFilePath(command.request[1]);
        return command;
    });
}

Result<Command> parseErase(const QList<QByteArray>& arguments) {
    return parseWords(arguments).map([](Command command) {
        command.ifNoneRuns = IfNoneRuns::erase;
        return command;
    });
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
    // A session manager (XSMP) restarts the programs of a saved session like this.
    if (first == "-session" && arguments.size() == 2) {
        return Command{Kind::ask, {u"restore"_s}, {}, IfNoneRuns::start};
    }
    static constexpr const char* commands[] = {"timer", "shelf", "pause", "resume", "ignore-next"};
    if (std::ranges::any_of(commands, [&](const char* command) { return first == command; })) {
        return parseWords(arguments);
    }
    if (first == "export" || first == "import") {
        return parseTransfer(arguments);
    }
    if (first == "erase") {
        return parseErase(arguments);
    }
    return first.startsWith('-') && first != "--" ? parseOption(arguments) : parseFiles(arguments);
}

QString helpText() { // NOLINT(readability-function-size): It is one text.
    return uR"(Usage: ravelo [OPTION]
       ravelo [--] FILE...
       ravelo timer start MINUTES [LABEL]
       ravelo timer stop
       ravelo timer status [--json]
       ravelo shelf list [--null | --json]
       ravelo pause [MINUTES]
       ravelo pause --status [--json]
       ravelo resume
       ravelo ignore-next
       ravelo export FILE
       ravelo import FILE
       ravelo erase --yes

Clipboard history, snippets and a quick note in a panel at the top centre of the
screen. Move the pointer there to open it; click elsewhere to close it.

  --toggle       open or close the panel; starts Ravelo if needed
  --settings     show the settings; starts Ravelo if needed
  --setup        show the first-run setup; starts Ravelo if needed
  --updates      check for a newer version; starts Ravelo if needed
  --take-over    start even if another machine that shares this home, or another
                 session, seems to use the data; a Ravelo there stops saving
  --quit         quit the running Ravelo
  --status       print one line about Claude Code: model, context used / limit,
                 peak hours, and how much of the plan's five-hour and weekly
                 windows is used; if Ravelo is not running, only as in files
  --status=json  the same and more as one JSON object; the man page lists its
                 fields. Dates are ISO 8601, unknown values null
  --status=waybar
                 one JSON object for waybar: text, tooltip, class (ok, warn or
                 critical) and percentage
  --status=tmux  a short line for tmux, with its colour codes
  --store-usage  read the input of a Claude Code status line from standard input
                 and store the session's context and the plan's usage; with
                 --print also print them in one line
  -h, --help     show this help
  -v, --version  show the version; with --verbose also which display server Ravelo
                 would use here, and why

If Ravelo is already running, starting it again opens the panel.

  FILE...        park the files, or file:// URLs, on the shelf and show it;
                 starts Ravelo if needed. Put names that begin with a dash, and
                 files called like a command, such as "timer", after --

These commands need a running Ravelo:

  timer start    start a focus timer, replacing a running one; MINUTES can be a
                 number like 0.5
  timer stop     stop the timer
  timer status   print one line, like "24:59 Deep work", or "no timer"; with
                 --json one object: running, label, remaining and duration in
                 seconds, ends (ISO 8601, UTC), text. Without a timer, ends is
                 null, the texts are empty and the numbers are 0
  shelf list     print the paths of the parked files, one per line; with -0 or
                 --null NUL-terminated; with --json one object: files, an array
                 of objects with path, stack (counted from 0) and selected, and
                 with uri if the path is not UTF-8
  pause          capture no copies for MINUTES, or until "ravelo resume"; also
                 after a restart
  pause --status print "capturing", "paused" or "paused until 10:57"; with --json
                 one object: paused, remaining in seconds, until (ISO 8601, UTC).
                 Without an end, remaining is 0 and until is null
  resume         capture copies again
  ignore-next    do not capture the next copy, if it comes within 30 seconds

  export FILE    write history, snippets, notes, drawing and shelf into a new
                 archive (tar), which is not encrypted
  import FILE    add everything in such an archive, or nothing

  erase --yes    remove history, notes, snippets, shelf and settings from the disk
                 for good; a running Ravelo ends. Works also if none runs

The exit status is 0 on success, 1 on failure or if Ravelo is not running, and 2
for an invalid command.

Ravelo runs on X11, on Wayland compositors with layer shell and data control (sway,
labwc, KWin and others), and on GNOME with its extension, which the settings offer to
turn on. Elsewhere it runs through XWayland, with limitations: the panel opens only
if the pointer or a drag is on its own handle, closes when the pointer leaves it, and
may not get the keyboard, and not all copies may be seen. RAVELO_PLATFORM=x11,
=wayland or =gnome chooses one.
)"_s;
}

QString versionText() {
    return u"Ravelo " RAVELO_VERSION "\n"_s;
}

QString detailsText() {
    const auto choice = chooseDisplay();
    const QString display = choice ? describe(*choice) : u"none (%1)"_s.arg(choice.error().message);
    return versionText() + u"Display server: %1\n"_s.arg(display);
}

} // namespace ravelo
