#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "platform/freedesktop/SingleInstance.h"
#include "platform/x11/PrepareApplication.h"
#include "platform/x11/X11DisplayServer.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace ravelo;
using namespace Qt::StringLiterals;

void say(std::FILE* where, const QString& text) {
    std::fputs(qUtf8Printable(text), where);
}

QString actionOf(Command command) {
    switch (command) {
    case Command::toggle:
        return u"toggle"_s;
    case Command::quit:
        return u"quit"_s;
    default:
        return {};
    }
}

/// Hands the command to the program that is running already, if there is one. Asks in a process of
/// its own: only the first application object of a process lets Qt Quick speak to screen readers.
bool isDoneElsewhere(Command command, int argc, char** argv) {
    const pid_t child = fork();
    if (child == 0) {
        bool sent = false;
        {
            const QCoreApplication application(argc, argv);
            sent = SingleInstance::send(actionOf(command));
        }
        std::_Exit(sent ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

int run(Command command, int argc, char** argv) {
    x11::prepareApplication();
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"ravelo"_s);
    QGuiApplication::setApplicationDisplayName(u"Ravelo"_s);
    QGuiApplication::setQuitOnLastWindowClosed(false);

    const auto instance = SingleInstance::claim();
    if (!instance) {
        if (SingleInstance::send(actionOf(command))) {
            return 0;
        }
        say(stderr, u"ravelo: another Ravelo runs but does not answer\n"_s);
        return 1;
    }
    auto display = x11::X11DisplayServer::create();
    if (!display) {
        say(stderr, u"ravelo: "_s + display.error().message + u"\n"_s);
        return 1;
    }
    AppDelegate delegate(**display);
    if (const auto launched = delegate.applicationDidFinishLaunching(); !launched) {
        say(stderr, u"ravelo: "_s + launched.error().message + u"\n"_s);
        return 1;
    }
    instance->onAction = [&](const QString& action) {
        delegate.perform(action);
    };
    if (command == Command::toggle) {
        delegate.perform(actionOf(command));
    }
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const auto command = parseCommandLine(arguments);
    if (!command) {
        say(stderr, u"ravelo: "_s + command.error().message + u"\nTry: ravelo --help\n"_s);
        return 2;
    }
    switch (*command) {
    case Command::showHelp:
        say(stdout, helpText());
        return 0;
    case Command::showVersion:
        say(stdout, versionText());
        return 0;
    default:
        break;
    }
    if (isDoneElsewhere(*command, argc, argv)) {
        return 0;
    }
    if (*command == Command::quit) {
        say(stderr, u"ravelo: not running\n"_s);
        return 1;
    }
    return run(*command, argc, argv);
}
