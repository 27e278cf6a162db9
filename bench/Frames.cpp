#include "bench/Frames.h"

#include <algorithm>

#include <sys/ipc.h>
#include <sys/shm.h>

namespace ravelo::bench {

namespace {

constexpr auto patienceForASize = std::chrono::seconds(20);

constexpr int cell = 16;         ///< Pixels; about a word or a symbol.
constexpr int detail = 48;       ///< Min. difference between a cell's darkest and brightest green.
constexpr double rounding = 0.5; ///< Levels.
constexpr double overlap =
    0.1; ///< Part of the variance: the background shows through during a fade.
constexpr int fewestDetails = 20;

int green(uint32_t pixel) {
    return static_cast<int>(pixel >> 8 & 0xFF);
}

/// Sums over the green values of two frames.
struct Fit {
    double n = 0, now = 0, then = 0, nowNow = 0, thenThen = 0, nowThen = 0;
    int darkest = 255;
    int brightest = 0;

    void add(int a, int b) {
        n += 1;
        now += a;
        then += b;
        nowNow += a * a;
        thenThen += b * b;
        nowThen += a * b;
        darkest = std::min(darkest, b);
        brightest = std::max(brightest, b);
    }

    [[nodiscard]] bool hasDetail() const { return brightest - darkest >= detail; }

    /// Whether now = factor * then + offset with a visible factor, except for rounding and overlap.
    [[nodiscard]] bool isAlike() const {
        const double together = n * nowThen - now * then;
        const double factor = together / (n * thenThen - then * then);
        const double spread = (n * nowNow - now * now) / (n * n);
        const double unexplained = spread - factor * together / (n * n);
        return factor * (brightest - darkest) >= 1 &&
               unexplained <= std::max(rounding * rounding, overlap * spread);
    }
};

Fit fit(const Frame& frame, const Frame& last, int left, int top) {
    Fit fit;
    for (int y = top; y < std::min<int>(top + cell, panelSize.height); ++y) {
        for (int x = left; x < std::min<int>(left + cell, panelSize.width); ++x) {
            const auto at = static_cast<size_t>(y * panelSize.width + x);
            fit.add(green(frame.pixels[at]), green(last.pixels[at]));
        }
    }
    return fit;
}

} // namespace

double shown(const Frame& frame, const Frame& last) {
    int details = 0;
    int alike = 0;
    for (int top = 0; top < panelSize.height; top += cell) {
        for (int left = 0; left < panelSize.width; left += cell) {
            const Fit both = fit(frame, last, left, top);
            details += both.hasDetail() ? 1 : 0;
            alike += both.hasDetail() && both.isAlike() ? 1 : 0;
        }
    }
    return details < fewestDetails ? 0 : double(alike) / details;
}

WindowWatch::WindowWatch(XServer& server, xcb_window_t window) : server_(server), window_(window) {
    xcb_connection_t* connection = server.get();
    const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);

    const auto* extension = xcb_get_extension_data(connection, &xcb_damage_id);
    const Owned<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
        connection, xcb_damage_query_version(connection, 1, 1), nullptr));
    if (!version) {
        giveUp("the X server has no Damage extension");
    }
    damageEvent_ = extension->first_event;
    damage_ = xcb_generate_id(connection);
    xcb_damage_create(connection, damage_, window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);

    constexpr size_t bytes = sizeof(uint32_t) * panelSize.width * panelSize.height;
    const int memory = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    segment_ = xcb_generate_id(connection);
    const auto attach =
        xcb_shm_attach_checked(connection, segment_, static_cast<uint32_t>(memory), 0);
    void* mapped = shmat(memory, nullptr, SHM_RDONLY);
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection, attach));
    shmctl(memory, IPC_RMID, nullptr); // Freed when the last user detaches.
    if (error || mapped == reinterpret_cast<void*>(-1)) {
        giveUp("the X server shares no memory");
    }
    shared_ = static_cast<const uint32_t*>(mapped);
}

WindowWatch::~WindowWatch() {
    shmdt(shared_);
}

Clock::time_point WindowWatch::awaitSize(Size size) {
    const auto deadline = Clock::now() + patienceForASize;
    while (size_ != size) {
        const auto event = server_.nextEvent(deadline);
        if (!event) {
            giveUp("the window does not get the size that it should have");
        }
        handle(*event);
    }
    return Clock::now();
}

std::optional<Frame> WindowWatch::nextFrame(Clock::duration timeout) {
    const auto deadline = Clock::now() + timeout;
    while (!drawn_) {
        const auto event = server_.nextEvent(deadline);
        if (!event) {
            return std::nullopt;
        }
        handle(*event);
    }
    return read();
}

void WindowWatch::handle(const xcb_generic_event_t& event) {
    if (typeOf(event) == XCB_CONFIGURE_NOTIFY) {
        const auto& configured = as<xcb_configure_notify_event_t>(event);
        size_ = {configured.width, configured.height};
    } else if (typeOf(event) == damageEvent_) {
        drawn_ = true;
    }
}

Frame WindowWatch::read() {
    xcb_connection_t* connection = server_.get();
    // In this order, so that changes in between are reported again.
    xcb_damage_subtract(connection, damage_, XCB_NONE, XCB_NONE);
    const auto asked =
        xcb_shm_get_image(connection, window_, 0, 0, panelSize.width, panelSize.height, ~0U,
                          XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0);
    const Owned<xcb_shm_get_image_reply_t> reply(
        xcb_shm_get_image_reply(connection, asked, nullptr));
    const auto seen = Clock::now();
    if (!reply) {
        giveUp("the window cannot be read");
    }
    drawn_ = false;
    return {seen, {shared_, shared_ + panelSize.width * panelSize.height}};
}

void openByPointer(XServer& server, WindowWatch& window, Place place) {
    const int16_t middle = static_cast<int16_t>(server.screen().width_in_pixels / 2);
    server.move({middle, 2});
    xcb_flush(server.get());
    window.awaitSize(panelSize);
    const int left = middle - panelSize.width / 2;
    server.move({static_cast<int16_t>(left + place.x), place.y});
    xcb_flush(server.get());
}

} // namespace ravelo::bench
