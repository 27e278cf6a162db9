#include "platform/freedesktop/secrets/SecretCalls.h"

#include "platform/freedesktop/BusCall.h"

namespace ravelo::secrets {

using namespace Qt::StringLiterals;

QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                  const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(name, path, interface, method);
    message.setArguments(arguments);
    return message;
}

void closeSession(const QDBusConnection& bus, const QDBusObjectPath& path) {
    if (!path.path().isEmpty()) {
        const Handle nobodyWaits = callBus(bus, call(path.path(), sessionInterface, u"Close"_s),
                                           std::chrono::seconds(1), [](const QDBusMessage&) {});
    }
}

QList<QDBusObjectPath> paths(const QVariant& answer) {
    QList<QDBusObjectPath> list;
    if (const auto argument = answer.value<QDBusArgument>();
        argument.currentSignature() == "ao"_L1) {
        argument >> list;
    }
    return list;
}

std::optional<Secret> valueOf(const QVariant& secret) {
    const auto argument = secret.value<QDBusArgument>();
    if (argument.currentSignature() != "(oayays)"_L1) {
        return std::nullopt;
    }
    QDBusObjectPath session;
    QByteArray parameters;
    QByteArray value;
    QString type;
    argument.beginStructure();
    argument >> session >> parameters >> value >> type;
    argument.endStructure();
    return Secret(std::move(value));
}

QVariant structure(const QDBusObjectPath& session, const Secret& secret) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << session << QByteArray() << secret.bytes() << u"text/plain"_s;
    argument.endStructure();
    return QVariant::fromValue(argument);
}

} // namespace ravelo::secrets
