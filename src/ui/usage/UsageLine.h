#pragma once

#include "base/Date.h"
#include "monitor/UsageWindow.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace ravelo {

// NOLINTBEGIN(readability-identifier-naming): QML demands capitals.
namespace UsageBand {
Q_NAMESPACE
QML_ELEMENT

enum Kind { Low, High, Critical };
Q_ENUM_NS(Kind)
} // namespace UsageBand

// NOLINTEND(readability-identifier-naming)

/// One window of the plan, formatted.
class UsageLine {
    Q_GADGET
    QML_VALUE_TYPE(usageLine)
    Q_PROPERTY(bool known MEMBER known)
    Q_PROPERTY(QString percent MEMBER percent)
    Q_PROPERTY(QString reset MEMBER reset)
    Q_PROPERTY(QString left MEMBER left)
    Q_PROPERTY(bool resetPassed MEMBER resetPassed)
    Q_PROPERTY(double fraction MEMBER fraction)
    /// A UsageBand, as a number: QML cannot read an enum from a value type.
    Q_PROPERTY(int band READ bandNumber)

public:
    bool known = false;
    QString percent;     ///< "42%"
    QString reset;       ///< When it resets.
    double fraction = 0; ///< Filled part of the bar, 0 to 1.
    UsageBand::Kind band = UsageBand::Low;
    bool resetPassed = false; ///< It has reset since; the percentage is old.
    QString left = {};        ///< Short form of `reset`: the remaining time only.

    [[nodiscard]] int bandNumber() const { return band; }

    friend bool operator==(const UsageLine&, const UsageLine&) = default;
};

[[nodiscard]] UsageLine usageLine(const std::optional<UsageWindow>& window, Date now);

} // namespace ravelo
