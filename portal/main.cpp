// Asks desktop portals what Ravelo may not ask itself: they read /proc/PID/root of their caller,
// which Ravelo forbids. This process has no secrets.

#include "Files.h"
#include "Keyboard.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

int main(int argc, char** argv) {
    if (isatty(STDIN_FILENO) != 0) {
        std::fputs("ravelo-portal asks desktop portals for ravelo, which starts it.\n", stderr);
        return EXIT_FAILURE;
    }
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == QLatin1StringView("keyboard")) {
        const Keyboard keyboard;
        return QCoreApplication::exec();
    }
    return transferFiles();
}
