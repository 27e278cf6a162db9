#pragma once

#include "base/Listeners.h"
#include "platform/Screens.h"
#include "platform/gnome/Channel.h"

namespace ravelo::gnome {

/// The monitors as the extension reports them; none before it does.
class GnomeScreens final : public Screens {
public:
    explicit GnomeScreens(Channel& channel)
        : deliveries_(channel.onDelivery([this](Delivery& delivery) {
              if (auto* report = std::get_if<ScreensReport>(&delivery.report)) {
                  report_ = std::move(*report);
                  changes_.notify();
              }
          })) {}

    [[nodiscard]] std::vector<Screen> all() const override { return report_.screens; }

    [[nodiscard]] std::optional<Screen> main() const override { return at(report_.primary); }

    [[nodiscard]] std::optional<Screen> at(std::size_t index) const {
        return index < report_.screens.size() ? std::optional(report_.screens[index])
                                              : std::nullopt;
    }

    /// The extension's index of it.
    [[nodiscard]] static std::size_t indexOf(const Screen& screen) { return screen.id.toUInt(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

private:
    ScreensReport report_{{}, 0};
    Listeners<> changes_;
    Handle deliveries_;
};

} // namespace ravelo::gnome
