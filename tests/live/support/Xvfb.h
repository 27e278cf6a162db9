#pragma once

#include <string>

#include <sys/types.h>

namespace ravelo::live {

/// An X server without a screen, on a display of its own, for one test program. It ends with this
/// object or, should the program be killed, with the program.
class Xvfb {
public:
    /// Waits until the server takes clients; `display` is empty where it does not come up.
    Xvfb();
    Xvfb(const Xvfb&) = delete;
    Xvfb& operator=(const Xvfb&) = delete;
    ~Xvfb();

    /// What belongs into $DISPLAY.
    [[nodiscard]] const std::string& display() const { return display_; }

private:
    pid_t process_ = -1;
    std::string display_;
};

} // namespace ravelo::live
