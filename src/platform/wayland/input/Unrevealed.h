#pragma once

#include "platform/DragMonitor.h"
#include "platform/InputGrab.h"

namespace ravelo::wayland {

/// Drags are revealed only over our own surfaces; see PanelWindow::dragOffer.
class NoDragMonitor final : public DragMonitor {
public:
    [[nodiscard]] qint64 changeCount() const override { return 0; }

    [[nodiscard]] std::shared_ptr<DragOffer> newest() override { return nullptr; }

    [[nodiscard]] Handle onChange(std::function<void()> /*callback*/) override { return {}; }
};

/// Programs cannot hold the input; the compositor keeps everything below a locker.
class NoInputGrab final : public InputGrab {
public:
    [[nodiscard]] Answer ask() override {
        return [] {
            return false;
        };
    }

    [[nodiscard]] Handle onLikelyTaken(std::function<void()> /*callback*/) override { return {}; }
};

} // namespace ravelo::wayland
