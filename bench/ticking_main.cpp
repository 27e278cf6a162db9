// Ravelo with a tick that never stops: the reference for measurements at rest.

#include "app/AppDelegate.h"
#include "platform/freedesktop/SingleInstance.h"
#include "platform/x11/PrepareApplication.h"
#include "platform/x11/X11DisplayServer.h"

#include <QApplication>
#include <QProcessEnvironment>

using namespace ravelo;

int main(int argc, char** argv) {
    Handle preparation = x11::prepareApplication();
    const QApplication application(argc, argv);
    preparation.reset();
    const auto instance = SingleInstance::claim();
    auto display = x11::X11DisplayServer::create();
    if (!instance || !display) {
        return 1;
    }
    AppDelegate delegate(**display, QProcessEnvironment::systemEnvironment(),
                         HoverTick::Rest::never);
    return delegate.applicationDidFinishLaunching(DataLock::Claim::ifFree) ? QApplication::exec()
                                                                           : 1;
}
