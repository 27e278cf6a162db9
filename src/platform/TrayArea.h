#pragma once

#include "base/Handle.h"

#include <QColor>

#include <functional>
#include <optional>

namespace ravelo {

/// The tray that is found through the display server. Main thread.
class TrayArea {
public:
    virtual ~TrayArea() = default;

    [[nodiscard]] virtual bool isThere() const = 0;

    /// The colour of its icons; nothing if unknown.
    [[nodiscard]] virtual std::optional<QColor> foreground() const = 0;

    /// Called after one of the two changed.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
