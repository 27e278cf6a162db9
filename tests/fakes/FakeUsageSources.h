#pragma once

#include "platform/ChildProcess.h"
#include "platform/HttpsClient.h"
#include "platform/SecretStore.h"

#include <QTimer>

#include <memory>

namespace ravelo {

/// Has one password, or none, for all services.
class FakeSecretStore final : public SecretStore {
public:
    [[nodiscard]] Handle find(const QString& service,
                              std::function<void(std::optional<Secret>)> done) override {
        asked.append(service);
        const std::shared_ptr<QTimer> timer(new QTimer, [](QTimer* gone) { gone->deleteLater(); });
        timer->setSingleShot(true);
        timer->callOnTimeout([this, done = std::move(done)] {
            done(secret ? std::optional(Secret(*secret)) : std::nullopt);
        });
        timer->start(0);
        return Handle([timer] { timer->stop(); });
    }

    std::optional<QByteArray> secret;
    QStringList asked;
};

/// A network that never answers.
class SilentHttps final : public HttpsClient {
public:
    [[nodiscard]] Handle get(const HttpsRequest& /*request*/,
                             std::function<void(std::optional<HttpsAnswer>)> /*done*/) override {
        ++asked;
        return {};
    }

    int asked = 0;
};

/// Programs that start and never end.
class EndlessChild final : public ChildProcess {
public:
    [[nodiscard]] Handle run(const QByteArray& /*path*/, const QList<QByteArray>& /*arguments*/,
                             std::function<void()> /*done*/) override {
        return {};
    }
};

} // namespace ravelo
