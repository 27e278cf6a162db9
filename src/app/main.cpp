#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/Erasing.h"
#include "app/FileArguments.h"
#include "app/StatusCommands.h"
#include "platform/freedesktop/XdgEnvironment.h"
#include "platform/freedesktop/instance/SingleInstance.h"
#include "platform/system/CoreDumps.h"
#include "ui/theme/Fonts.h"

#include <QApplication>
#include <QProcessEnvironment>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace ravelo;
using namespace Qt::StringLiterals;

constexpr std::chrono::minutes longAnswerTime{10};

/// These write or read whole disks' worth of images, or ask the keyring.
std::chrono::milliseconds answerTime(const QStringList& request) {
    static const QStringList slow{u"export"_s, u"import"_s, u"erase"_s};
    return slow.contains(request.value(0)) ? longAnswerTime : SingleInstance::answerTime;
}

constexpr int notRunning = 255; ///< Not a status of an answer.

/// The part of the command line for Qt, which would mistake certain file names for options.
int nameAlone = 1;
int nameAndSession = 3; ///< With "-session ID", an option of Qt's.

/// Proves that the user started this process, so that its window may get the keyboard.
QByteArray activationToken() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token; // X11 has the older one.
}

/// Split before printing, because names may contain line feeds.
std::optional<Answer> askForConsole(const QStringList& request) {
    if (request != QStringList{u"shelf"_s, u"list"_s} || !printsToTerminal()) {
        return SingleInstance::ask(request, activationToken(), answerTime(request));
    }
    auto answer =
        SingleInstance::ask(request + QStringList{u"--null"_s}, {}, SingleInstance::answerTime);
    if (answer) {
        answer->output = harmless(answer->output, '\0').replace('\0', '\n');
    }
    return answer;
}

/// The exit status of the running program's answer, or `notRunning`. Asks in a child process,
/// because Qt Quick supports screen readers only with the first application object of a process.
std::optional<int> askElsewhere(const QStringList& request, char** argv) {
    std::signal(SIGCHLD,
                SIG_DFL); // Our parent may have ignored it, and then waitpid() fails.
    const pid_t child = fork();
    if (child == 0) {
        int status = notRunning;
        {
            const QCoreApplication application(nameAlone, argv);
            if (const auto answer = askForConsole(request)) {
                status = report(*answer);
            }
        }
        std::_Exit(status);
    }
    int status = 0;
    if (child < 0) {
        return std::nullopt;
    }
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return EXIT_FAILURE; // By SIGPIPE, if there is no reader any more.
    }
    return WEXITSTATUS(status) == notRunning ? std::nullopt : std::optional(WEXITSTATUS(status));
}

int run(const Command& command, char** argv) {
    const QByteArray token = activationToken(); // Qt removes it from the environment.
    const auto environment = QProcessEnvironment::systemEnvironment(); // Ours is changed next.
    const auto display = chooseDisplay();
    if (!display) {
        complain(display.error().message);
        return EXIT_FAILURE;
    }
    Handle preparation = Platform::prepareApplication(display->display);
    const std::jthread fonts = readFontConfiguration();
    const bool isRestored = command.request.value(0) == "restore"_L1;
    // The status item needs widgets.
    const QApplication application(isRestored ? nameAndSession : nameAlone, argv);
    preparation.reset();
    QApplication::setApplicationName(u"Ravelo"_s);
    QApplication::setDesktopFileName(u"org.ravelo.Ravelo"_s);
    QApplication::setQuitOnLastWindowClosed(false);

    const auto instance = SingleInstance::claim();
    if (!instance) {
        return report(SingleInstance::ask(command.request, token, answerTime(command.request))
                          .value_or(SingleInstance::silence()));
    }
    auto platform = Platform::make(*display, environment);
    if (!platform) {
        complain(platform.error().message);
        return EXIT_FAILURE;
    }
    AppDelegate delegate(std::move(*platform));
    if (const auto launched = delegate.applicationDidFinishLaunching(command.claim); !launched) {
        complain(launched.error().message);
        return EXIT_FAILURE;
    }
    instance->onRequest = [&](const QStringList& request, const QByteArray& senderToken) {
        return delegate.answer(request, senderToken);
    };
    instance->onLongRequest = [&](const QStringList& request, const SingleInstance::Reply& reply) {
        return delegate.answerLater(request, reply);
    };
    if (command.ifNoneRuns == Command::IfNoneRuns::startAndAsk) {
        (void)report(delegate.answer(command.request, token));
    }
    return QApplication::exec();
}

int ask(Command command, char** argv) {
    const FoundFiles found = findFiles(command.files);
    command.request += found.paths;
    complain(found.errors.join(u'\n'));
    if (found.paths.isEmpty() && !found.errors.isEmpty()) {
        return EXIT_FAILURE;
    }
    const bool starts = command.ifNoneRuns == Command::IfNoneRuns::start ||
                        command.ifNoneRuns == Command::IfNoneRuns::startAndAsk;
    auto status = starts && !AppDelegate::mayRunAlready() ? std::nullopt
                                                          : askElsewhere(command.request, argv);
    if (!status && command.ifNoneRuns == Command::IfNoneRuns::readFiles) {
        return report(statusFromFiles(Platform::preferenceFile(), command.request.mid(1)));
    }
    if (!status && command.ifNoneRuns == Command::IfNoneRuns::erase) {
        const QCoreApplication application(nameAlone, argv);
        return report(eraseEverything());
    }
    if (!status && command.ifNoneRuns == Command::IfNoneRuns::fail) {
        complain(u"not running"_s);
        return EXIT_FAILURE;
    }
    if (!status) {
        status = run(command, argv);
    }
    return *status == EXIT_SUCCESS && !found.errors.isEmpty() ? EXIT_FAILURE : *status;
}

} // namespace

int main(int argc, char** argv) {
    forbidCoreDumps();
    ignoreRelativeXdgPaths();
    const auto command = parseCommandLine({argv + std::min(argc, 1), argv + argc});
    if (!command) {
        complain(command.error().message);
        std::fputs("Try: ravelo --help\n", stderr);
        return 2;
    }
    switch (command->kind) {
    case Command::Kind::showHelp:
        return print(helpText().toUtf8());
    case Command::Kind::showVersion:
        return print(versionText().toUtf8());
    case Command::Kind::showDetails:
        return print(detailsText().toUtf8());
    case Command::Kind::storeUsage:
        return report(
            storeUsageFromInput(command->request.isEmpty() ? Printing::none : Printing::line));
    case Command::Kind::ask:
        return ask(*command, argv);
    }
    return EXIT_FAILURE; // No such kind.
}
