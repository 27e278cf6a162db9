// Ravelo with a tick that never stops: the reference for measurements at rest.

#include "app/AppDelegate.h"
#include "platform/freedesktop/instance/SingleInstance.h"

#include <QApplication>
#include <QProcessEnvironment>

using namespace ravelo;

int main(int argc, char** argv) {
    const auto display = chooseDisplay();
    if (!display) {
        return 1;
    }
    Handle preparation = Platform::prepareApplication(display->display);
    const QApplication application(argc, argv);
    preparation.reset();
    const auto instance = SingleInstance::claim();
    auto platform =
        Platform::make(*display, QProcessEnvironment::systemEnvironment(), HoverTick::Rest::never);
    if (!instance || !platform) {
        return 1;
    }
    AppDelegate delegate(std::move(*platform));
    return delegate.applicationDidFinishLaunching(DataLock::Claim::ifFree) ? QApplication::exec()
                                                                           : 1;
}
