#pragma once

#include "base/Listeners.h"
#include "platform/Keyring.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>

namespace ravelo {

/// The Secret Service (org.freedesktop.secrets on the session bus), which is started if it can be.
/// Secrets have the attribute "service" and are in the default collection; one is created if there
/// is none. They pass in a plain session: programs that can listen on the user's bus can also read
/// them.
class SecretKeyring final : public QObject, public Keyring {
    Q_OBJECT

public:
    explicit SecretKeyring(QDBusConnection bus,
                           std::chrono::milliseconds timeout = std::chrono::seconds(5));

    [[nodiscard]] Handle find(const QString& service,
                              std::function<void(const Found&)> done) override;
    [[nodiscard]] Handle keep(const QString& service, const QString& label, const Secret& secret,
                              std::function<void(const Result<void>&)> done) override;
    [[nodiscard]] Handle remove(const QString& service,
                                std::function<void(const Result<void>&)> done) override;
    [[nodiscard]] Handle unlock(std::function<void()> done) override;
    [[nodiscard]] Handle look(std::function<void(bool)> done) override;
    [[nodiscard]] Handle onChange(std::function<void()> callback) override;

private Q_SLOTS:
    void somethingChanged();

private:
    QDBusConnection bus_;
    std::chrono::milliseconds timeout_;
    Listeners<> listeners_;
    bool follows_ = false; ///< The bus's signals.
};

} // namespace ravelo
