#pragma once

#include "platform/WindowFrame.h"

namespace ravelo::wayland {

/// The compositor places windows itself, and would count a shadow as part of them: so there is
/// none. Main thread.
class WaylandWindowFrame final : public WindowFrame {
public:
    [[nodiscard]] bool isTranslucent() const override { return false; }

    [[nodiscard]] Handle onTranslucencyChange(std::function<void()> /*callback*/) override {
        return {};
    }

    void setRoom(QMargins /*room*/) override {}

    void moveTo(QPoint /*corner*/) override {}
};

} // namespace ravelo::wayland
