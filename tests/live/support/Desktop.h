#pragma once

#include "live/support/Clients.h"

#include <memory>

namespace ravelo::live {

/// An X server of our own, $DISPLAY from now on, with the window manager openbox and two monitors:
/// DUMMY0 of 1920x1080 and, right of it, DUMMY1 of 1280x1024.
class Desktop {
public:
    /// Waits until all is there; needs no application object.
    Desktop();

    [[nodiscard]] bool isUp() const { return windowManager_ != nullptr; }

private:
    [[nodiscard]] bool startServer();

    std::unique_ptr<Client> server_;
    std::unique_ptr<Client> windowManager_; ///< Goes first.
};

/// Switches DUMMY1 on; whether that worked.
[[nodiscard]] bool showSecondMonitor();

/// Runs a program to its end; whether that was a success.
[[nodiscard]] bool run(const QString& program, const QStringList& arguments);

} // namespace ravelo::live
