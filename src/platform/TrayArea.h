#pragma once

#include "base/Handle.h"

#include <QColor>

#include <functional>
#include <optional>

namespace ravelo {

/// The place for icons that the display server itself knows of. Main thread.
class TrayArea {
public:
    virtual ~TrayArea() = default;

    [[nodiscard]] virtual bool isThere() const = 0;

    /// What its icons are drawn in; nothing where it does not tell.
    [[nodiscard]] virtual std::optional<QColor> foreground() const = 0;

    /// Called after one of the two changed.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
