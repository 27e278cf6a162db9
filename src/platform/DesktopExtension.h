#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// The part of the program that has to run inside the desktop's shell, on desktops that leave other
/// programs too little. It is never turned on without being asked for. Main thread.
class DesktopExtension {
public:
    enum class State {
        notNeeded, ///< Or nothing is known of it.
        missing,   ///< It is not installed.
        off,
        failed,        ///< It could not be turned on from here, or has failed since.
        waitsForLogin, ///< It is turned on, and runs once the user has logged in again.
        waitsForStart, ///< It runs, but this program was started without it.
        on,
        older, ///< Than this program, which cannot use it.
        newer,
    };

    virtual ~DesktopExtension() = default;

    [[nodiscard]] virtual State state() const = 0;

    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;

    /// At the user's request, if it is `off`. `state` follows later.
    virtual void turnOn() = 0;
};

} // namespace ravelo
