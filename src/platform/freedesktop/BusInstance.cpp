#include "platform/freedesktop/BusInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView busName("org.ravelo.Ravelo");
constexpr QLatin1StringView objectPath("/org/ravelo/Ravelo");
constexpr QLatin1StringView interfaceName("org.freedesktop.Application");
constexpr int answerTime = 5000; // Milliseconds.

} // namespace

QDBusConnection sessionBus() {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"ravelo"_s);
}

std::unique_ptr<SingleInstance> BusInstance::claim(QDBusConnection& bus) {
    auto instance = std::make_unique<BusInstance>();
    new ApplicationAdaptor(*instance); // Owned by the instance.
    // The object first: whoever sees the name must find it.
    bus.registerObject(objectPath, instance.get());
    const auto reply =
        bus.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService);
    if (reply.value() != QDBusConnectionInterface::ServiceRegistered) {
        return nullptr;
    }
    return instance;
}

bool BusInstance::send(QDBusConnection& bus, const QString& action) {
    if (!bus.interface()->isServiceRegistered(busName)) {
        return false;
    }
    auto call = QDBusMessage::createMethodCall(
        busName, objectPath, interfaceName, action.isEmpty() ? u"Activate"_s : u"ActivateAction"_s);
    if (!action.isEmpty()) {
        call << action << QVariantList();
    }
    call << QVariantMap();
    return bus.call(call, QDBus::Block, answerTime).type() == QDBusMessage::ReplyMessage;
}

ApplicationAdaptor::ApplicationAdaptor(BusInstance& instance)
    : QDBusAbstractAdaptor(&instance), instance_(instance) {}

void ApplicationAdaptor::Activate(const QVariantMap& /*platformData*/) {
    act({});
}

void ApplicationAdaptor::ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                                        const QVariantMap& /*platformData*/) {
    act(name);
}

// Later, so that the caller has its answer also where the action ends the program.
void ApplicationAdaptor::act(const QString& action) {
    QMetaObject::invokeMethod(
        this,
        [this, action] {
            if (instance_.onAction) {
                instance_.onAction(action);
            }
        },
        Qt::QueuedConnection);
}

} // namespace ravelo
