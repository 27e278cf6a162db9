#pragma once

#include "base/Date.h"
#include "monitor/PlanPace.h"
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
    Q_PROPERTY(QString pace MEMBER pace)
    Q_PROPERTY(double passed MEMBER passed)
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

    QString pace = {};  ///< Only if it will be full before its reset.
    double passed = -1; ///< Part of its time, 0 to 1; negative if unknown.

    [[nodiscard]] int bandNumber() const { return band; }

    friend bool operator==(const UsageLine&, const UsageLine&) = default;
};

/// A window of the plan, its pace and its length.
struct PacedWindow {
    std::optional<UsageWindow> window;
    std::optional<Pace> pace = {};
    WindowKind kind = sessionKind;
};

[[nodiscard]] UsageLine usageLine(const PacedWindow& paced, Date now);

/// What a tooltip says about its pace, one line each: when it will be full or that it lasts, and
/// how much was used recently. Empty if that is unknown.
[[nodiscard]] QStringList paceNotes(const PacedWindow& paced, Date now);

} // namespace ravelo
