#include "platform/freedesktop/BusCall.h"

#include <QDBusPendingCallWatcher>

#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

Handle callBus(const QDBusConnection& bus, QDBusMessage call, std::chrono::milliseconds timeOut,
               std::function<void(const QDBusMessage&)> done, Activation activation) {
    call.setAutoStartService(activation == Activation::allowed);
    auto* const watcher =
        new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(timeOut.count())));
    const auto end = std::make_shared<decltype(done)>(std::move(done));
    const auto finish = [watcher, end] {
        watcher->deleteLater();
        if (const auto report = std::exchange(*end, nullptr)) {
            report(watcher->reply());
        }
    };
    if (watcher->isFinished()) { // On a dead bus, where it never emits `finished`.
        QMetaObject::invokeMethod(watcher, finish, Qt::QueuedConnection);
    } else {
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, finish);
    }
    return Handle([end] { *end = nullptr; }); // The watcher is deleted when the call ends.
}

Handle findOwner(const QDBusConnection& bus, const QString& service,
                 std::chrono::milliseconds timeOut, std::function<void(const QString&)> done) {
    const auto driver = u"org.freedesktop.DBus"_s;
    auto question = QDBusMessage::createMethodCall(driver, u"/org/freedesktop/DBus"_s, driver,
                                                   u"GetNameOwner"_s);
    question << service;
    return callBus(bus, question, timeOut, [done = std::move(done)](const QDBusMessage& answer) {
        done(answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0).toString()
                                                         : QString());
    });
}

} // namespace ravelo
