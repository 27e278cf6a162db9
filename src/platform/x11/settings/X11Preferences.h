#pragma once

#include "platform/IconPreference.h"
#include "platform/MotionPreference.h"
#include "platform/x11/settings/ManagerSelection.h"

#include <utility>

namespace ravelo::x11 {

/// One value of the settings manager (XSETTINGS). Main thread.
template <typename Value>
class XSetting {
public:
    /// `read` takes the value out of the manager's property; `settings` must outlive this.
    XSetting(ManagerProperty& settings, Value (*read)(const QByteArray& property))
        : value_(read(settings.bytes())), changes_(settings.onChange([this, &settings, read] {
              const Value value = read(settings.bytes());
              if (std::exchange(value_, value) != value) {
                  listeners_.notify();
              }
          })) {}

    [[nodiscard]] const Value& value() const { return value_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    Value value_;
    Listeners<> listeners_;
    Handle changes_;
};

/// The setting "Net/IconThemeName". Main thread.
class X11IconPreference final : public IconPreference {
public:
    explicit X11IconPreference(ManagerProperty& settings);

    [[nodiscard]] QString theme() const override { return theme_.value(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return theme_.onChange(std::move(callback));
    }

private:
    XSetting<QString> theme_;
};

/// The setting "Gtk/EnableAnimations". Main thread.
class X11MotionPreference final : public MotionPreference {
public:
    explicit X11MotionPreference(ManagerProperty& settings);

    [[nodiscard]] bool isReduced() const override { return reduced_.value(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return reduced_.onChange(std::move(callback));
    }

private:
    XSetting<bool> reduced_;
};

} // namespace ravelo::x11
