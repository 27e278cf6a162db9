// starting COUNT PROGRAM: starts and ends a program COUNT times. Prints for each start the
// milliseconds until its handle was drawn.

#include "bench/XServer.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <optional>
#include <span>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace ravelo::bench;
using namespace std::chrono_literals;

constexpr auto timeout = 20s;
constexpr auto betweenLooks = 500us;
constexpr auto toEnd = 300ms; ///< For work after the start.

/// The new window with the size of a handle.
xcb_window_t awaitHandle(XServer& server) {
    const auto deadline = Clock::now() + timeout;
    xcb_window_t sized = XCB_NONE;
    while (const auto event = server.nextEvent(deadline)) {
        if (typeOf(*event) == XCB_CONFIGURE_NOTIFY || typeOf(*event) == XCB_CREATE_NOTIFY) {
            const bool created = typeOf(*event) == XCB_CREATE_NOTIFY;
            const auto& create = as<xcb_create_notify_event_t>(*event);
            const auto& configure = as<xcb_configure_notify_event_t>(*event);
            const Size size = created ? Size{create.width, create.height}
                                      : Size{configure.width, configure.height};
            if (size == handleSize) {
                sized = created ? create.window : configure.window;
            }
        } else if (typeOf(*event) == XCB_MAP_NOTIFY &&
                   as<xcb_map_notify_event_t>(*event).window == sized) {
            return sized;
        }
    }
    giveUp("no handle appears");
}

bool isDrawn(XServer& server, xcb_window_t window) {
    const auto asked = xcb_get_image(server.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                     handleSize.width, handleSize.height, ~0U);
    const Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(server.get(), asked, nullptr));
    if (!image) {
        return false;
    }
    const std::span bytes(xcb_get_image_data(image.get()),
                          static_cast<size_t>(xcb_get_image_data_length(image.get())));
    return std::ranges::any_of(bytes, [](uint8_t byte) { return byte != 0; });
}

void awaitDrawn(XServer& server, xcb_window_t window) {
    const auto deadline = Clock::now() + timeout;
    while (!isDrawn(server, window)) {
        if (Clock::now() > deadline) {
            giveUp("the handle is not drawn");
        }
        (void)server.nextEvent(Clock::now() + betweenLooks);
    }
}

void end(XServer& server, pid_t process) {
    const auto rest = Clock::now() + toEnd;
    while (server.nextEvent(rest)) {
    }
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    while (server.nextEvent(Clock::now())) {
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        giveUp("starting COUNT PROGRAM");
    }
    XServer server;
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(server.get(), server.screen().root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(server.get());
    for (int left = std::atoi(argv[1]); left > 0; --left) {
        const auto begun = Clock::now();
        const pid_t process = fork();
        if (process == 0) {
            execl(argv[2], argv[2], nullptr);
            _exit(127);
        }
        awaitDrawn(server, awaitHandle(server));
        const auto shown = Clock::now();
        std::cout << std::chrono::duration<double, std::milli>(shown - begun).count() << std::endl;
        end(server, process);
    }
}
