// scrolling WINDOW SECONDS: opens a panel by pointer and turns the wheel over its list, 60 notches
// per second. Prints when each frame was captured, in milliseconds from the first.

#include "bench/Frames.h"

#include <cstdlib>
#include <iostream>

namespace {

using namespace ravelo::bench;
using namespace std::chrono_literals;

constexpr auto notch = std::chrono::duration_cast<Clock::duration>(1s) / 60;
constexpr Place inList = {400, 420}; ///< In the panel.
constexpr auto settling = 1s;        ///< Longer than any fade of the opening.

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        giveUp("scrolling WINDOW SECONDS");
    }
    XServer server;
    WindowWatch window(server, static_cast<xcb_window_t>(std::strtoul(argv[1], nullptr, 10)));
    openByPointer(server, window, inList);
    while (window.nextFrame(settling)) { // Frames of the opening.
    }
    const auto begun = Clock::now();
    const auto end = begun + std::chrono::seconds(std::atoi(argv[2]));
    for (auto due = begun; due < end; due += notch) {
        server.turnWheel();
        xcb_flush(server.get());
        while (const auto frame = window.nextFrame(due + notch - Clock::now())) {
            std::cout << std::chrono::duration<double, std::milli>(frame->seen - begun).count()
                      << '\n';
        }
    }
}
