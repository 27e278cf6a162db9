#pragma once

#include "base/Handle.h"
#include "base/KeyCombination.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace ravelo {

/// Keys that open the panel whatever has the focus. Main thread.
class GlobalShortcut {
public:
    enum class State {
        impossible, ///< This desktop lets no program take keys, as far as known.
        none,       ///< No keys are set.
        asked,      ///< The desktop has not answered yet.
        registered,
        unassigned, ///< The desktop knows us, but has given us no keys.
        taken,      ///< Another program has these keys.
        refused,    ///< The desktop or the user said no, or the keyboard has no such key.
    };

    virtual ~GlobalShortcut() = default;

    [[nodiscard]] virtual State state() const = 0;

    /// What the desktop calls the registered keys, which may be others than those that were set.
    /// Empty if they are the same.
    [[nodiscard]] virtual QString description() const { return {}; }

    /// Of the state or the description.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;

    /// Finds out whether it is possible, if the desktop was not asked yet; `state` follows
    /// later.
    virtual void ask() {}

    /// Replaces the keys; without a value they go back to the desktop. `state` may follow later.
    virtual void set(const std::optional<KeyCombination>& keys) = 0;

    /// While the handle lives, the keys go to the focused window, unless the desktop itself takes
    /// them.
    [[nodiscard]] virtual Handle suspend() { return {}; }

    /// Called at each press, with a token for `PanelWindow::requestFocus` if the desktop gave one.
    [[nodiscard]] virtual Handle onPress(std::function<void(const QByteArray& token)> callback) = 0;
};

} // namespace ravelo
