// typing WINDOW PROCESS WORD...: opens a panel by pointer, types each word into its search field
// and deletes it again. Prints for each key press the milliseconds until the next frame, which
// shows the letter, was captured, and until the last one, which shows what was found.

#include "bench/Frames.h"
#include "bench/Idle.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

using namespace ravelo::bench;
using namespace std::chrono_literals;

constexpr xcb_keysym_t backSpace = 0xff08;
constexpr auto settled = 200ms;        ///< The caret blinks later.
constexpr Place inSearch = {200, 220}; ///< In the panel.

void press(XServer& server, WindowWatch& window, int process, xcb_keysym_t key) {
    awaitIdle(process);
    while (window.nextFrame(0ms)) { // Earlier frames.
    }
    server.press(key);
    const auto begun = Clock::now();
    xcb_flush(server.get());
    const auto first = window.nextFrame(20s);
    if (!first) {
        giveUp("a key brings no frame");
    }
    auto last = first->seen;
    while (const auto frame = window.nextFrame(settled)) {
        last = frame->seen;
    }
    const auto since = [begun](Clock::time_point then) {
        return std::chrono::duration<double, std::milli>(then - begun).count();
    };
    std::cout << since(first->seen) << ' ' << since(last) << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        giveUp("typing WINDOW PROCESS WORD...");
    }
    const int process = std::atoi(argv[2]);
    XServer server;
    WindowWatch window(server, static_cast<xcb_window_t>(std::strtoul(argv[1], nullptr, 10)));
    openByPointer(server, window, inSearch);
    awaitIdle(process); // No hand clicks in the moment of opening.
    server.click();
    xcb_flush(server.get());
    for (int word = 3; word < argc; ++word) {
        const std::string_view letters = argv[word];
        for (const char letter : letters) {
            press(server, window, process, static_cast<xcb_keysym_t>(letter));
        }
        for (size_t typed = letters.size(); typed > 0; --typed) {
            press(server, window, process, backSpace);
        }
    }
}
