#include "platform/freedesktop/instance/SingleInstance.h"

#include "platform/freedesktop/instance/BusInstance.h"
#include "platform/freedesktop/instance/SocketInstance.h"

#include <QFileInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

// Connecting without a bus would start one for the display.
bool hasSessionBus() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           (!runtime.isEmpty() && QFileInfo::exists(runtime + u"/bus"_s));
}

} // namespace

std::unique_ptr<SingleInstance> SingleInstance::claim() {
    if (hasSessionBus()) {
        if (auto bus = sessionBus(); bus.isConnected()) {
            return BusInstance::claim(bus);
        }
    }
    return SocketInstance::claim();
}

std::optional<Answer> SingleInstance::ask(const QStringList& request,
                                          const QByteArray& activationToken,
                                          std::chrono::milliseconds timeout) {
    if (hasSessionBus()) {
        if (auto bus = sessionBus(); bus.isConnected()) {
            return BusInstance::ask(bus, request, activationToken, timeout);
        }
    }
    return SocketInstance::ask(request, activationToken, timeout);
}

Answer SingleInstance::silence() {
    return {1, {}, u"another Ravelo runs but does not answer"_s};
}

void SingleInstance::answer(const QStringList& request, const QByteArray& activationToken,
                            const Reply& reply) const {
    if (onLongRequest && onLongRequest(request, reply)) {
        return;
    }
    reply(onRequest ? onRequest(request, activationToken) : Answer{1, {}, u"not ready yet"_s});
}

} // namespace ravelo
