#include "platform/freedesktop/instance/BusInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView busName("org.ravelo.Ravelo");
constexpr QLatin1StringView objectPath("/org/ravelo/Ravelo");

bool meansNobody(const QDBusMessage& error) {
    return error.errorName() == "org.freedesktop.DBus.Error.ServiceUnknown"_L1 ||
           error.errorName() == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1;
}

constexpr QLatin1StringView tokenKey("activation-token");

/// Launchers on X11 send the older of the two.
QByteArray activationToken(const QVariantMap& platformData) {
    const QByteArray token = platformData.value(tokenKey).toString().toUtf8();
    return token.isEmpty() ? platformData.value(u"desktop-startup-id"_s).toString().toUtf8()
                           : token;
}

} // namespace

QDBusConnection sessionBus() {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"ravelo"_s);
}

BusInstance::BusInstance(const QDBusConnection& bus) {
    new AskAdaptor(*this, bus); // Owned by the instance, like the next one.
    new ApplicationAdaptor(*this, bus);
}

std::unique_ptr<BusInstance> BusInstance::claim(const QDBusConnection& bus) {
    std::unique_ptr<BusInstance> instance(new BusInstance(bus));
    // The object first, so that it exists when the name appears.
    QDBusConnection(bus).registerObject(objectPath, instance.get());
    const auto reply =
        bus.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService);
    if (reply.value() != QDBusConnectionInterface::ServiceRegistered) {
        return nullptr;
    }
    return instance;
}

std::optional<Answer> BusInstance::ask(const QDBusConnection& bus, const QStringList& request,
                                       const QByteArray& activationToken,
                                       std::chrono::milliseconds timeout) {
    auto call = QDBusMessage::createMethodCall(busName, objectPath, busName, u"Ask"_s);
    call.setAutoStartService(false);
    call << request;
    if (!activationToken.isEmpty()) { // Only then: an older Ravelo does not know it.
        call << QVariantMap{{tokenKey, QString::fromUtf8(activationToken)}};
    }
    const QDBusMessage reply = bus.call(call, QDBus::Block, static_cast<int>(timeout.count()));
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == "iays"_L1) {
        const QVariantList values = reply.arguments();
        return Answer{values.at(0).toInt(), values.at(1).toByteArray(), values.at(2).toString()};
    }
    return meansNobody(reply) ? std::nullopt : std::optional(silence());
}

AskAdaptor::AskAdaptor(BusInstance& instance, const QDBusConnection& bus)
    : QDBusAbstractAdaptor(&instance), instance_(instance), bus_(bus) {}

void AskAdaptor::Ask(const QStringList& request, const QDBusMessage& call, int& status,
                     QByteArray& output, QString& errors) {
    Ask(request, {}, call, status, output, errors);
}

void AskAdaptor::Ask(const QStringList& request, const QVariantMap& platformData,
                     const QDBusMessage& call, int& /*status*/, QByteArray& /*output*/,
                     QString& /*errors*/) {
    call.setDelayedReply(true);
    instance_.answer(
        request, activationToken(platformData), [bus = bus_, call](const Answer& answer) {
            bus.send(call.createReply(QVariantList{answer.status, answer.output, answer.errors}));
        });
}

ApplicationAdaptor::ApplicationAdaptor(BusInstance& instance, const QDBusConnection& bus)
    : QDBusAbstractAdaptor(&instance), instance_(instance), bus_(bus) {}

void ApplicationAdaptor::Activate(const QVariantMap& platformData, const QDBusMessage& call) {
    act({u"show"_s}, platformData, call);
}

void ApplicationAdaptor::ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                                        const QVariantMap& platformData, const QDBusMessage& call) {
    act({name}, platformData, call);
}

void ApplicationAdaptor::Open(const QStringList& uris, const QVariantMap& platformData,
                              const QDBusMessage& call) {
    act(QStringList{u"open"_s} + uris, platformData, call);
}

void ApplicationAdaptor::act(const QStringList& request, const QVariantMap& platformData,
                             const QDBusMessage& call) {
    call.setDelayedReply(true);
    instance_.answer(
        request, activationToken(platformData), [bus = bus_, call](const Answer& answer) {
            bus.send(answer.status == 0 ? call.createReply()
                                        : call.createErrorReply(QDBusError::Failed, answer.errors));
        });
}

} // namespace ravelo
