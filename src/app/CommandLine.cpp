#include "app/CommandLine.h"

#include <QHash>

namespace ravelo {

using namespace Qt::StringLiterals;

Result<Command> parseCommandLine(const QStringList& arguments) {
    static const QHash<QString, Command> commands = {
        {u"--toggle"_s, Command::toggle},       {u"--quit"_s, Command::quit},
        {u"--help"_s, Command::showHelp},       {u"-h"_s, Command::showHelp},
        {u"--version"_s, Command::showVersion}, {u"-v"_s, Command::showVersion},
    };
    if (arguments.isEmpty()) {
        return Command::start;
    }
    if (const auto found = commands.constFind(arguments.first()); found == commands.cend()) {
        return failure(u"unknown argument: "_s + arguments.first());
    } else if (arguments.size() > 1) {
        return failure(u"one argument is enough: "_s + arguments.at(1));
    } else {
        return found.value();
    }
}

QString helpText() {
    return uR"(Usage: ravelo [OPTION]

Clipboard history, snippets and a quick note in a panel at the top centre of the
screen. Move the pointer there to open it; click elsewhere to close it.

  --toggle       open the panel, or close it; starts Ravelo where it is not running
  --quit         end the running Ravelo
  -h, --help     show this help
  -v, --version  show the version

Started a second time, Ravelo opens the panel of the one that is running.
It needs an X11 session. In a Wayland session it runs through XWayland, with less:
the panel opens only under a pointer or a drag on its own handle and closes when
the pointer leaves it, and the compositor may give it no keyboard to type with.
)"_s;
}

QString versionText() {
    return u"Ravelo " RAVELO_VERSION "\n"_s;
}

} // namespace ravelo
