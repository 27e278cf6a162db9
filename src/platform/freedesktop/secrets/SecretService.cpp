#include "platform/freedesktop/secrets/SecretService.h"

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/secrets/SecretCalls.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QMap>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;
using namespace secrets;

namespace {

/// One call after the other.
class Search {
public:
    using Done = std::function<void(std::optional<Secret>)>;

    Search(QDBusConnection bus, std::chrono::milliseconds timeout, Done done)
        : bus_(std::move(bus)), deadline_(timeout), done_(std::move(done)) {}

    ~Search() { closeSession(bus_, session_); }

    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    void start(const QString& service) {
        ask(call(servicePath, serviceInterface, u"SearchItems"_s,
                 {QVariant::fromValue(Attributes{{u"service"_s, service}})}),
            [this](const QVariantList& found) {
                // Locked items follow in a second list, which we ignore.
                if (const auto items = paths(found.value(0)); !items.isEmpty()) {
                    open(items.first());
                } else {
                    finish(std::nullopt);
                }
            });
    }

private:
    void open(const QDBusObjectPath& item) {
        ask(call(servicePath, serviceInterface, u"OpenSession"_s,
                 {u"plain"_s, QVariant::fromValue(QDBusVariant(QString()))}),
            [this, item](const QVariantList& opened) {
                session_ = opened.value(1).value<QDBusObjectPath>();
                read(item);
            });
    }

    void read(const QDBusObjectPath& item) {
        ask(call(item.path(), itemInterface, u"GetSecret"_s, {QVariant::fromValue(session_)}),
            [this](const QVariantList& secret) { finish(valueOf(secret.value(0))); });
    }

    void ask(const QDBusMessage& question, std::function<void(const QVariantList&)> take) {
        const auto left = std::chrono::milliseconds(std::max<qint64>(deadline_.remainingTime(), 1));
        step_ = callBus(bus_, question, left, [this, take = std::move(take)](const auto& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage) {
                take(reply.arguments());
            } else {
                finish(std::nullopt);
            }
        });
    }

    void finish(const std::optional<Secret>& secret) {
        closeSession(bus_, std::exchange(session_, {}));
        const Done done = std::exchange(done_, nullptr); // The callback may destroy this search.
        done(secret);
    }

    QDBusConnection bus_;
    QDeadlineTimer deadline_;
    Done done_;
    QDBusObjectPath session_;
    Handle step_;
};

} // namespace

SecretService::SecretService(QDBusConnection bus, std::chrono::milliseconds timeout)
    : bus_(std::move(bus)), timeout_(timeout) {
    qDBusRegisterMetaType<Attributes>();
}

Handle SecretService::find(const QString& service,
                           std::function<void(std::optional<Secret>)> done) {
    auto search = std::make_shared<Search>(bus_, timeout_, std::move(done));
    search->start(service);
    return Handle([search]() mutable { search.reset(); });
}

} // namespace ravelo
