#pragma once

#include "platform/SecretStore.h"

#include <QDBusConnection>

#include <chrono>

namespace ravelo {

/// The Secret Service (org.freedesktop.secrets on the session bus), if it runs already. Items are
/// found by their attribute "service" and read in a plain session: programs that can listen on the
/// user's bus can also read them.
class SecretService final : public SecretStore {
public:
    /// A search finds nothing after `timeout`.
    explicit SecretService(QDBusConnection bus,
                           std::chrono::milliseconds timeout = std::chrono::seconds(2));

    [[nodiscard]] Handle find(const QString& service,
                              std::function<void(std::optional<Secret>)> done) override;

private:
    QDBusConnection bus_;
    std::chrono::milliseconds timeout_;
};

} // namespace ravelo
