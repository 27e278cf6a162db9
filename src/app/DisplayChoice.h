#pragma once

#include "base/Result.h"

#include <QString>

namespace ravelo {

/// Kinds of display server.
enum class Display { x11, wayland, gnome };

struct DisplayChoice {
    Display display;
    QString reason; ///< To stand in parentheses, see `describe`; empty if there was no choice.
};

/// Which display server to use: what RAVELO_PLATFORM names, or else what there is, Wayland first.
/// The error is for the user. Before the application object.
[[nodiscard]] Result<DisplayChoice> chooseDisplay();

/// For the user: "Wayland (the reason)", or the name alone.
[[nodiscard]] QString describe(const DisplayChoice& choice);

} // namespace ravelo
