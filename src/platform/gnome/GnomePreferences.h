#pragma once

#include "base/Listeners.h"
#include "platform/IconPreference.h"
#include "platform/MotionPreference.h"
#include "platform/TrayArea.h"
#include "platform/gnome/Channel.h"

namespace ravelo::gnome {

/// What the extension reported last of the user's choices for all programs.
class LookReports {
public:
    explicit LookReports(Channel& channel)
        : deliveries_(channel.onDelivery([this](Delivery& delivery) {
              if (auto* report = std::get_if<Look>(&delivery.report)) {
                  look_ = std::move(*report);
                  changes_.notify();
              }
          })) {}

    [[nodiscard]] const Look& look() const { return look_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return changes_.add(std::move(callback));
    }

private:
    Look look_{true, {}};
    Listeners<> changes_;
    Handle deliveries_;
};

class GnomeMotionPreference final : public MotionPreference {
public:
    explicit GnomeMotionPreference(LookReports& reports) : reports_(reports) {}

    [[nodiscard]] bool isReduced() const override { return !reports_.look().animations; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return reports_.onChange(std::move(callback));
    }

private:
    LookReports& reports_;
};

class GnomeIconPreference final : public IconPreference {
public:
    explicit GnomeIconPreference(LookReports& reports) : reports_(reports) {}

    [[nodiscard]] QString theme() const override { return reports_.look().icons; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return reports_.onChange(std::move(callback));
    }

private:
    LookReports& reports_;
};

/// GNOME Shell has none.
class NoTrayArea final : public TrayArea {
public:
    [[nodiscard]] bool isThere() const override { return false; }

    [[nodiscard]] std::optional<QColor> foreground() const override { return std::nullopt; }

    [[nodiscard]] Handle onChange(std::function<void()> /*callback*/) override { return {}; }
};

} // namespace ravelo::gnome
