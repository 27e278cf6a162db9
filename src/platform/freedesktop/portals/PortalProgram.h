#pragma once

#include <QProcessEnvironment>
#include <QString>

namespace ravelo {

/// What `ravelo-portal` gets of our environment: the variables for the bus.
[[nodiscard]] inline QProcessEnvironment portalEnvironment(const QProcessEnvironment& ours) {
    QProcessEnvironment its;
    for (const auto& name :
         {QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("XDG_RUNTIME_DIR")}) {
        if (ours.contains(name)) {
            its.insert(name, ours.value(name));
        }
    }
    its.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return its;
}

} // namespace ravelo
