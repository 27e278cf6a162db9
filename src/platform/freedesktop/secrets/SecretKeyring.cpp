#include "platform/freedesktop/secrets/SecretKeyring.h"

#include "platform/freedesktop/BusCall.h"
#include "platform/freedesktop/secrets/SecretCalls.h"

#include <QDBusMetaType>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;
using namespace secrets;

namespace {

const QString noPrompt = u"/"_s;

QString messageOf(const QDBusMessage& error) {
    return error.errorMessage().isEmpty() ? u"it does not answer"_s : error.errorMessage();
}

} // namespace

/// A conversation, one call after the other. Kept alive by its handle.
class SecretTask : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(const QVariantList&)>;
    using Failure = std::function<void(const QString&)>;

    SecretTask(QDBusConnection bus, std::chrono::milliseconds timeout)
        : bus_(std::move(bus)), timeout_(timeout) {}

    ~SecretTask() override { closeSession(bus_, session_); }

    /// Nothing is called any more. Its own callbacks may do this, so it is deleted later.
    void cancel() {
        onFailure = nullptr;
        prompted_ = nullptr;
        step_.reset();
        deleteLater();
    }

    Failure onFailure; ///< Set it first.

    void ask(const QDBusMessage& question, Answer take) {
        ask(question, std::move(take), onFailure);
    }

    void ask(const QDBusMessage& question, Answer take, Failure failed) {
        step_ = callBus(
            bus_, question, timeout_,
            [take = std::move(take), failed = std::move(failed)](const QDBusMessage& reply) {
                if (reply.type() == QDBusMessage::ReplyMessage) {
                    take(reply.arguments());
                } else {
                    failed(messageOf(reply));
                }
            },
            Activation::allowed);
    }

    void withSession(std::function<void(const QDBusObjectPath&)> next) {
        ask(call(servicePath, serviceInterface, u"OpenSession"_s,
                 {u"plain"_s, QVariant::fromValue(QDBusVariant(QString()))}),
            [this, next = std::move(next)](const QVariantList& opened) {
                session_ = opened.value(1).value<QDBusObjectPath>();
                next(session_);
            });
    }

    /// Shows a prompt, if there is one, and goes on once it is answered.
    void prompt(const QDBusObjectPath& path, std::function<void()> next) {
        if (path.path() == noPrompt || path.path().isEmpty()) {
            next();
            return;
        }
        prompted_ = std::move(next);
        connect(&service_, &QDBusServiceWatcher::serviceUnregistered, this,
                [this] { promptAnswered(true); });
        bus_.connect(name, path.path(), promptInterface, u"Completed"_s, this,
                     SLOT(promptAnswered(bool)));
        ask(call(path.path(), promptInterface, u"Prompt"_s, {QString()}),
            [](const QVariantList&) {});
    }

    void unlock(std::function<void()> next) {
        ask(call(servicePath, serviceInterface, u"ReadAlias"_s, {u"default"_s}),
            [this, next = std::move(next)](const QVariantList& alias) {
                const auto path = alias.value(0).value<QDBusObjectPath>();
                if (path.path() == noPrompt) {
                    create(next);
                    return;
                }
                ask(call(servicePath, serviceInterface, u"Unlock"_s,
                         {QVariant::fromValue(QList<QDBusObjectPath>{path})}),
                    [this, next](const QVariantList& unlocked) {
                        prompt(unlocked.value(1).value<QDBusObjectPath>(), next);
                    });
            });
    }

    void create(const std::function<void()>& next) {
        const QVariantMap properties{{u"org.freedesktop.Secret.Collection.Label"_s, u"Default"_s}};
        ask(call(servicePath, serviceInterface, u"CreateCollection"_s, {properties, u"default"_s}),
            [this, next](const QVariantList& created) {
                prompt(created.value(1).value<QDBusObjectPath>(), next);
            });
    }

private Q_SLOTS:

    void promptAnswered(bool dismissed) {
        const Failure failed = onFailure; // It may cancel, which drops the member.
        if (const auto next = std::exchange(prompted_, nullptr)) {
            dismissed ? failed(u"its question was not answered"_s) : next();
        }
    }

private:
    QDBusConnection bus_;
    std::chrono::milliseconds timeout_;
    QDBusServiceWatcher service_{name, bus_, QDBusServiceWatcher::WatchForUnregistration};
    QDBusObjectPath session_;
    std::function<void()> prompted_; ///< Set while the user is being asked.
    Handle step_;
};

namespace {

Handle handleOf(SecretTask* task) {
    return Handle([task] { task->cancel(); });
}

using Found = Keyring::Found;

void readItem(SecretTask* task, const QDBusObjectPath& item,
              const std::function<void(const Found&)>& done) {
    task->withSession([task, item, done](const QDBusObjectPath& session) {
        task->ask(
            call(item.path(), itemInterface, u"GetSecret"_s, {QVariant::fromValue(session)}),
            [done](const QVariantList& answer) {
                const auto secret = valueOf(answer.value(0));
                done(secret ? Found{Found::Kind::found, *secret} : Found{Found::Kind::unavailable});
            });
    });
}

/// A locked collection may hide what it has.
void lookWhetherLocked(SecretTask* task, const std::function<void(const Found&)>& done) {
    task->ask(
        call(defaultCollection, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
             {QString(collectionInterface), u"Locked"_s}),
        [done](const QVariantList& answer) {
            const bool locked = answer.value(0).value<QDBusVariant>().variant().toBool();
            done({locked ? Found::Kind::locked : Found::Kind::missing});
        },
        [done](const QString&) { done({Found::Kind::missing}); });
}

QDBusMessage searchFor(const QString& service) {
    return call(servicePath, serviceInterface, u"SearchItems"_s,
                {QVariant::fromValue(Attributes{{u"service"_s, service}})});
}

} // namespace

SecretKeyring::SecretKeyring(QDBusConnection bus, std::chrono::milliseconds timeout)
    : bus_(std::move(bus)), timeout_(timeout) {
    qDBusRegisterMetaType<Attributes>();
    qDBusRegisterMetaType<QList<QDBusObjectPath>>();
}

Handle SecretKeyring::find(const QString& service, std::function<void(const Found&)> done) {
    auto* const task = new SecretTask(bus_, timeout_);
    task->onFailure = [done](const QString&) {
        done({Found::Kind::unavailable});
    };
    task->ask(searchFor(service), [task, done = std::move(done)](const QVariantList& found) {
        const auto unlocked = paths(found.value(0));
        if (!unlocked.isEmpty()) {
            readItem(task, unlocked.first(), done);
        } else if (!paths(found.value(1)).isEmpty()) {
            done({Found::Kind::locked});
        } else {
            lookWhetherLocked(task, done);
        }
    });
    return handleOf(task);
}

Handle SecretKeyring::keep(const QString& service, const QString& label, const Secret& secret,
                           std::function<void(const Result<void>&)> done) {
    auto* const task = new SecretTask(bus_, timeout_);
    task->onFailure = [done](const QString& problem) {
        done(failure(problem));
    };
    const auto create = [task, service, label, secret, done](const QDBusObjectPath& session) {
        const QVariantMap properties{{u"org.freedesktop.Secret.Item.Label"_s, label},
                                     {u"org.freedesktop.Secret.Item.Attributes"_s,
                                      QVariant::fromValue(Attributes{{u"service"_s, service}})}};
        task->ask(call(defaultCollection, collectionInterface, u"CreateItem"_s,
                       {properties, structure(session, secret), true}),
                  [task, done](const QVariantList& created) {
                      task->prompt(created.value(1).value<QDBusObjectPath>(),
                                   [done] { done(Result<void>()); });
                  });
    };
    task->unlock([task, create] { task->withSession(create); });
    return handleOf(task);
}

Handle SecretKeyring::remove(const QString& service,
                             std::function<void(const Result<void>&)> done) {
    auto* const task = new SecretTask(bus_, timeout_);
    task->onFailure = [done](const QString& problem) {
        done(failure(problem));
    };
    task->ask(searchFor(service), [task, done = std::move(done)](const QVariantList& found) {
        const auto items = paths(found.value(0)) + paths(found.value(1));
        if (items.isEmpty()) {
            done(Result<void>());
            return;
        }
        task->ask(call(items.first().path(), itemInterface, u"Delete"_s),
                  [task, done](const QVariantList& deleted) {
                      task->prompt(deleted.value(0).value<QDBusObjectPath>(),
                                   [done] { done(Result<void>()); });
                  });
    });
    return handleOf(task);
}

Handle SecretKeyring::unlock(std::function<void()> done) {
    auto* const task = new SecretTask(bus_, timeout_);
    task->onFailure = [done](const QString&) {
        done();
    };
    task->unlock(std::move(done));
    return handleOf(task);
}

Handle SecretKeyring::look(std::function<void(bool)> done) {
    auto* const task = new SecretTask(bus_, timeout_);
    task->onFailure = [done](const QString&) {
        done(false);
    };
    task->ask(call(servicePath, serviceInterface, u"ReadAlias"_s, {u"default"_s}),
              [done = std::move(done)](const QVariantList&) { done(true); });
    return handleOf(task);
}

Handle SecretKeyring::onChange(std::function<void()> callback) {
    if (!follows_) {
        follows_ = true;
        const auto follow = [this](const QString& interface, const QString& signal) {
            bus_.connect(name, {}, interface, signal, this, SLOT(somethingChanged()));
        };
        follow(serviceInterface, u"CollectionChanged"_s);
        follow(serviceInterface, u"CollectionCreated"_s);
        follow(u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        bus_.connect(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                     u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s, QStringList{name}, {}, this,
                     SLOT(somethingChanged()));
    }
    return listeners_.add(std::move(callback));
}

void SecretKeyring::somethingChanged() {
    listeners_.notify();
}

} // namespace ravelo

#include "SecretKeyring.moc"
