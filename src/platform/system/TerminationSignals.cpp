#include "platform/system/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <cstdint>
#include <memory>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ravelo {

namespace {

// write is async-signal-safe.
int wakeFd = -1;

extern "C" void wakeUp(int /*signal*/) {
    const uint64_t one = 1;
    [[maybe_unused]] const auto written = write(wakeFd, &one, sizeof one);
}

} // namespace

Handle onTerminationSignal(std::function<void()> callback) {
    wakeFd = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto notifier = std::make_shared<QSocketNotifier>(wakeFd, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [callback = std::move(callback)] {
                         uint64_t count = 0;
                         [[maybe_unused]] const auto drained = read(wakeFd, &count, sizeof count);
                         callback();
                     });
    struct sigaction action = {};
    action.sa_handler = wakeUp;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
    return Handle([notifier] { notifier->setEnabled(false); });
}

} // namespace ravelo
