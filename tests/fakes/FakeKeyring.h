#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/Keyring.h"

#include <QMap>

namespace ravelo {

/// A keyring in memory. Answers come with the next event of the scheduler.
class FakeKeyring final : public Keyring {
public:
    explicit FakeKeyring(Scheduler& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] Handle find(const QString& service,
                              std::function<void(const Found&)> done) override {
        return later([this, service, done = std::move(done)] {
            using Kind = Found::Kind;
            done(!isThere                     ? Found{Kind::unavailable}
                 : isLocked                   ? Found{Kind::locked}
                 : !secrets.contains(service) ? Found{Kind::missing}
                                              : Found{Kind::found, Secret(copy(service))});
        });
    }

    [[nodiscard]] Handle keep(const QString& service, const QString& /*label*/,
                              const Secret& secret,
                              std::function<void(const Result<void>&)> done) override {
        return later([this, service, secret, done = std::move(done)] {
            if (!isThere) {
                done(failure(QStringLiteral("it does not answer")));
                return;
            }
            isLocked = false; // The user answered the prompt.
            if (keeps) {
                secrets[service] = QByteArray(secret.bytes().constData(), secret.bytes().size());
            }
            done(Result<void>());
        });
    }

    [[nodiscard]] Handle remove(const QString& service,
                                std::function<void(const Result<void>&)> done) override {
        return later([this, service, done = std::move(done)] {
            secrets.remove(service);
            done(Result<void>());
        });
    }

    [[nodiscard]] Handle unlock(std::function<void()> done) override {
        return later([this, done = std::move(done)] {
            isLocked = isLocked && refusesToUnlock;
            done();
        });
    }

    [[nodiscard]] Handle look(std::function<void(bool)> done) override {
        return later([this, done = std::move(done)] { done(isThere); });
    }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    /// The state was set.
    void notify() { listeners_.notify(); }

    bool isThere = true;
    bool isLocked = false;
    bool refusesToUnlock = false;
    bool keeps = true;
    QMap<QString, QByteArray> secrets;

private:
    [[nodiscard]] QByteArray copy(const QString& service) const {
        const QByteArray& secret = secrets[service];
        return {secret.constData(), secret.size()};
    }

    [[nodiscard]] Handle later(std::function<void()> answer) {
        return scheduler_.after(Seconds(0), std::move(answer));
    }

    Scheduler& scheduler_;
    Listeners<> listeners_;
};

} // namespace ravelo
