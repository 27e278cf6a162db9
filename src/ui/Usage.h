#pragma once

#include "base/Date.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace ravelo {

/// How much of one window of the plan is used up.
struct UsageWindow {
    double percent = 0;
    std::optional<Date> resets;

    friend bool operator==(const UsageWindow&, const UsageWindow&) = default;
};

/// How one window of the plan is shown.
class UsageLine {
    Q_GADGET
    QML_VALUE_TYPE(usageLine)
    Q_PROPERTY(bool known MEMBER known)
    Q_PROPERTY(QString percent MEMBER percent)
    Q_PROPERTY(QString reset MEMBER reset)
    Q_PROPERTY(double fraction MEMBER fraction)
    Q_PROPERTY(Band band MEMBER band)

public:
    enum Band { Low, High, Critical };
    Q_ENUM(Band)

    bool known = false;
    QString percent;     ///< "42%"
    QString reset;       ///< When it starts anew.
    double fraction = 0; ///< Of the bar that is filled, 0 to 1.
    Band band = Low;

    friend bool operator==(const UsageLine&, const UsageLine&) = default;
};

[[nodiscard]] UsageLine usageLine(const std::optional<UsageWindow>& window, Date now);

} // namespace ravelo
