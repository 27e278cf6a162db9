#pragma once

#include <string>

#include <sys/types.h>

namespace ravelo::live {

/// A compositor with one output of 1280 x 800 and no real devices, for one test program. It ends
/// with this object or with the program, and leaves nothing behind. As sway refuses to run as root,
/// it runs as nobody then.
class Sway {
public:
    /// Waits until clients can connect; `display` is empty if it does not start.
    Sway();
    Sway(const Sway&) = delete;
    Sway& operator=(const Sway&) = delete;
    ~Sway();

    /// For $WAYLAND_DISPLAY and $SWAYSOCK.
    [[nodiscard]] const std::string& display() const { return display_; }

    [[nodiscard]] const std::string& control() const { return control_; }

private:
    std::string folder_;
    pid_t process_ = -1;
    std::string display_;
    std::string control_;
};

} // namespace ravelo::live
