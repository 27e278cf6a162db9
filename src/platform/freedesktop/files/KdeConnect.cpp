#include "platform/freedesktop/files/KdeConnect.h"

#include "platform/freedesktop/BusCall.h"

#include <QDBusArgument>
#include <QMap>
#include <QStringList>

#include <algorithm>
#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.kde.kdeconnect"_s;
constexpr std::chrono::seconds lookTimeOut{2};
constexpr std::chrono::seconds sendTimeOut{5};

/// Valid in an object path.
bool isAddressable(const QString& id) {
    return !id.isEmpty() && std::ranges::all_of(id, [](QChar c) {
        return c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber());
    });
}

QList<NearbyDevice> devicesIn(const QDBusMessage& reply) {
    QList<NearbyDevice> devices;
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == "a{ss}"_L1) {
        const auto names = qdbus_cast<QMap<QString, QString>>(reply.arguments().constFirst());
        for (auto [id, name] : names.asKeyValueRange()) {
            if (isAddressable(id)) {
                devices.append({id, name});
            }
        }
    }
    return devices;
}

} // namespace

Handle KdeConnect::list(std::function<void(QList<NearbyDevice>)> done) {
    const auto step = std::make_shared<Handle>(); // The current call.
    *step = findOwner(bus_, service, lookTimeOut,
                      [this, step, done = std::move(done)](const QString& owner) {
                          if (owner.isEmpty()) {
                              done({});
                          } else {
                              *step = listRunning(done);
                          }
                      });
    return Handle([step] { step->reset(); });
}

Handle KdeConnect::listRunning(std::function<void(QList<NearbyDevice>)> done) const {
    auto call = QDBusMessage::createMethodCall(service, u"/modules/kdeconnect"_s,
                                               u"org.kde.kdeconnect.daemon"_s, u"deviceNames"_s);
    const bool onlyReachable = true;
    const bool onlyPaired = true;
    call << onlyReachable << onlyPaired;
    return callBus(bus_, call, lookTimeOut,
                   [done = std::move(done)](const QDBusMessage& reply) { done(devicesIn(reply)); });
}

Handle KdeConnect::send(const QString& deviceId, const QList<QByteArray>& addresses,
                        std::function<void(bool)> done) {
    auto call = QDBusMessage::createMethodCall(
        service, u"/modules/kdeconnect/devices/"_s + deviceId + u"/share"_s,
        u"org.kde.kdeconnect.device.share"_s, u"shareUrls"_s);
    QStringList texts;
    for (const QByteArray& address : addresses) {
        texts.append(QString::fromLatin1(address));
    }
    call << texts;
    return callBus(bus_, call, sendTimeOut, [done = std::move(done)](const QDBusMessage& reply) {
        done(reply.type() == QDBusMessage::ReplyMessage);
    });
}

} // namespace ravelo
