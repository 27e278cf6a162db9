#pragma once

#include "platform/SecretStore.h"

#include <QDBusConnection>

#include <chrono>

namespace ravelo {

/// The Secret Service of the desktop (org.freedesktop.secrets on the session bus), where it runs
/// already. Items are found by their attribute "service" and read in a plain session: whoever could
/// listen on the user's bus could ask as well.
class SecretService final : public SecretStore {
public:
    /// A search that takes longer than `patience` has found nothing.
    explicit SecretService(QDBusConnection bus,
                           std::chrono::milliseconds patience = std::chrono::seconds(2));

    [[nodiscard]] Handle find(const QString& service,
                              std::function<void(std::optional<Secret>)> done) override;

private:
    QDBusConnection bus_;
    std::chrono::milliseconds patience_;
};

} // namespace ravelo
