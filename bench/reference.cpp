// The minimum that can open: a handle at the top of the screen that becomes a striped panel under
// the pointer, and a handle again when the pointer leaves. Prints its window.

#include "bench/XServer.h"

#include <algorithm>
#include <iostream>
#include <iterator>

namespace {

using namespace ravelo::bench;

class Handle {
public:
    explicit Handle(XServer& server)
        : server_(server),
          window_(xcb_generate_id(server.get())),
          stripes_(xcb_generate_id(server.get())) {
        const auto& screen = server.screen();
        const uint32_t values[] = {screen.black_pixel, 1,
                                   XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW};
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window_, screen.root,
                          left(handleSize), 0, handleSize.width, handleSize.height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_create_gc(server.get(), stripes_, window_, XCB_GC_FOREGROUND, &screen.white_pixel);
        xcb_map_window(server.get(), window_);
    }

    [[nodiscard]] xcb_window_t window() const { return window_; }

    void resize(Size size) {
        const uint32_t values[] = {static_cast<uint32_t>(left(size)), size.width, size.height};
        xcb_configure_window(
            server_.get(), window_,
            XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
    }

    void fill() {
        constexpr uint16_t width = 9;
        xcb_rectangle_t bars[panelSize.width / (2 * width)];
        for (int16_t x = 0; auto& bar : bars) {
            bar = {x, 0, width, panelSize.height};
            x = static_cast<int16_t>(x + 2 * width);
        }
        xcb_poly_fill_rectangle(server_.get(), window_, stripes_, std::size(bars), bars);
    }

private:
    [[nodiscard]] int16_t left(Size size) const {
        return static_cast<int16_t>((server_.screen().width_in_pixels - size.width) / 2);
    }

    XServer& server_;
    xcb_window_t window_;
    xcb_gcontext_t stripes_;
};

} // namespace

int main() {
    XServer server;
    Handle handle(server);
    xcb_flush(server.get());
    std::cout << handle.window() << std::endl;
    while (true) {
        const auto event = server.nextEvent(Clock::time_point::max());
        if (event && typeOf(*event) == XCB_ENTER_NOTIFY) {
            handle.resize(panelSize);
            handle.fill();
        } else if (event && typeOf(*event) == XCB_LEAVE_NOTIFY) {
            handle.resize(handleSize);
        }
    }
}
