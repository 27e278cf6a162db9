#pragma once

#include "platform/ShutDown.h"

#include <QDBusConnection>

namespace ravelo {

/// Asks the login service (org.freedesktop.login1 on the system bus) to power off. Main thread.
class LoginShutDown final : public ShutDown {
public:
    explicit LoginShutDown(QDBusConnection bus);

    void request() override;

private:
    QDBusConnection bus_;
};

} // namespace ravelo
