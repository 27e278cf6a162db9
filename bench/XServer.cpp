#include "bench/XServer.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <iostream>

#include <poll.h>

namespace ravelo::bench {

void giveUp(std::string_view why) {
    std::cerr << "bench: " << why << '\n';
    std::exit(1);
}

XServer::XServer() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) {
        giveUp("there is no X server");
    }
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

Owned<xcb_generic_event_t> XServer::nextEvent(Clock::time_point deadline) {
    xcb_flush(connection_);
    while (true) {
        Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection_));
        if (event && event->response_type == 0) {
            giveUp("the X server refused a request");
        }
        if (xcb_connection_has_error(connection_) != 0) {
            giveUp("the X server went away");
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (event || left <= 0) {
            return event;
        }
        pollfd wait = {xcb_get_file_descriptor(connection_), POLLIN, 0};
        ::poll(&wait, 1, static_cast<int>(std::min<long long>(left, 1000)));
    }
}

void XServer::move(Place place) {
    fake(XCB_MOTION_NOTIFY, 0, place);
}

void XServer::click() {
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_1, {});
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_1, {});
}

void XServer::turnWheel() {
    fake(XCB_BUTTON_PRESS, XCB_BUTTON_INDEX_5, {});
    fake(XCB_BUTTON_RELEASE, XCB_BUTTON_INDEX_5, {});
}

void XServer::press(xcb_keysym_t key) {
    const xcb_setup_t* setup = xcb_get_setup(connection_);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(
        connection_, xcb_get_keyboard_mapping(connection_, setup->min_keycode, count), nullptr));
    if (!map) {
        giveUp("there is no keyboard");
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    for (int code = 0; code < count; ++code) {
        if (symbols[code * map->keysyms_per_keycode] == key) {
            const auto detail = static_cast<uint8_t>(setup->min_keycode + code);
            fake(XCB_KEY_PRESS, detail, {});
            fake(XCB_KEY_RELEASE, detail, {});
            return;
        }
    }
    giveUp("there is no such key");
}

void XServer::fake(uint8_t type, uint8_t detail, Place place) {
    xcb_test_fake_input(connection_, type, detail, XCB_CURRENT_TIME, screen_->root, place.x,
                        place.y, 0);
}

} // namespace ravelo::bench
