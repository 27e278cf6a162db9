#pragma once

#include "live/support/Clients.h"
#include "platform/wayland/WaylandDisplayServer.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace ravelo::live {

/// Another program that has no window but the clipboard.
struct OtherProgram {
    std::unique_ptr<wayland::ClipboardThread> thread =
        std::move(wayland::ClipboardThread::create().value());
    wayland::WaylandPasteboard pasteboard{*thread};

    OtherProgram() { thread->start(); }
};

[[nodiscard]] inline std::unique_ptr<wayland::WaylandDisplayServer> connectToSway() {
    return std::move(wayland::WaylandDisplayServer::create().value());
}

/// Runs a program to its end and returns what it wrote.
inline QByteArray output(const char* program, const QStringList& arguments) {
    return Client(QLatin1StringView(program), arguments).finish();
}

/// A pointer and a keyboard; see tools/virtual_hand.
class Hand {
public:
    Hand() { wait(); }

    /// Global logical pixels, on outputs of 1280 x 800 side by side.
    void move(QPointF place, int outputs = 1) {
        say(QStringLiteral("move %1 %2 %3 800").arg(place.x()).arg(place.y()).arg(1280 * outputs));
    }

    void click() {
        say(QStringLiteral("press"));
        say(QStringLiteral("release"));
    }

private:
    void say(const QString& line) {
        process_.write(line.toUtf8());
        wait();
    }

    void wait() { EXPECT_EQ(process_.readLine(), "ready"); }

    Client process_{QStringLiteral(VIRTUAL_HAND), {}};
};

} // namespace ravelo::live
