#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "platform/PasteKeys.h"

#include <functional>
#include <optional>

namespace ravelo {

class NotchController;
class Pasteboard;

/// Copies, closes the panel and pastes into the window that had the keyboard before it. If anything
/// is known to be in the way, it only copies. How certain it is that no other window gets the keys
/// depends on PasteKeys: on X11 it is, on Wayland the focus may change in the last moment. Main
/// thread.
class Pasting {
public:
    /// All outlive this. `keys` is null if there is no way to type.
    struct Services {
        Scheduler& scheduler;
        Pasteboard& pasteboard;
        NotchController& controller;
        PasteKeys* keys;
    };

    explicit Pasting(Services services) : services_(services) {}

    [[nodiscard]] bool isPossible() const;

    /// The window to paste into; nothing if that is not known or cannot be done.
    [[nodiscard]] std::optional<PasteKeys::Target> target() const;

    /// Writes the pasteboard, and calls `done` then: if only a program with the keyboard may
    /// write, it has to come before the panel closes.
    using Copy = std::function<void(const std::function<void()>& done)>;

    /// Without a target nothing is typed.
    void run(const std::optional<PasteKeys::Target>& target, const Copy& copy);

private:
    void wait();

    struct Run {
        PasteKeys::Target target;
        qint64 countBefore; ///< The pasteboard's.
        Seconds end{};
    };

    Services services_;
    std::optional<Run> run_;
    Handle waiting_;
};

} // namespace ravelo
