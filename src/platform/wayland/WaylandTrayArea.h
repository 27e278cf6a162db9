#pragma once

#include "platform/TrayArea.h"

namespace ravelo::wayland {

/// Trays are found on the session bus alone.
class WaylandTrayArea final : public TrayArea {
public:
    [[nodiscard]] bool isThere() const override { return false; }

    [[nodiscard]] std::optional<QColor> foreground() const override { return std::nullopt; }

    [[nodiscard]] Handle onChange(std::function<void()> /*callback*/) override { return {}; }
};

} // namespace ravelo::wayland
