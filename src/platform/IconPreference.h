#pragma once

#include "base/Handle.h"

#include <QString>

#include <functional>

namespace ravelo {

/// The icon theme that the user has chosen for the desktop. Main thread.
class IconPreference {
public:
    virtual ~IconPreference() = default;

    /// Name of an icon theme; empty if unknown.
    [[nodiscard]] virtual QString theme() const = 0;

    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
