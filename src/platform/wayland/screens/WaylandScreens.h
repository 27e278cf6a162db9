#pragma once

#include "base/Listeners.h"
#include "platform/Screens.h"

#include <QObject>

class QScreen;

namespace ravelo::wayland {

/// The outputs as Qt knows them. What bars reserve is not revealed, and there is no primary output:
/// the first one stands for it. Main thread.
class WaylandScreens final : public Screens {
public:
    WaylandScreens();

    [[nodiscard]] std::vector<Screen> all() const override;
    [[nodiscard]] std::optional<Screen> main() const override;

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    /// The output with this id, or null.
    [[nodiscard]] static QScreen* find(const QString& id);

private:
    void watch(QScreen* screen);

    Listeners<> listeners_;
    QObject context_;
};

} // namespace ravelo::wayland
