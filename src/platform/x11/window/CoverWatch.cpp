#include "platform/x11/window/CoverWatch.h"

#include "platform/x11/connection/Events.h"
#include "platform/x11/connection/Properties.h"
#include "platform/x11/pointer/X11InputGrab.h"

#include <algorithm>
#include <utility>

namespace ravelo::x11 {

namespace {

/// Some lockers leave a pixel free at the edges so that compositors do not mistake their window for
/// a full-screen game.
constexpr int slack = 4;

struct Questions {
    xcb_window_t window;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
};

bool hides(Connection& connection, const Questions& asked, const QRect& monitor) {
    const Owned<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection.get(), asked.attributes, nullptr));
    const Owned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection.get(), asked.geometry, nullptr));
    if (!attributes || !geometry || attributes->override_redirect == 0 ||
        attributes->map_state == XCB_MAP_STATE_UNMAPPED) {
        return false;
    }
    const int border = 2 * geometry->border_width;
    const QRect area(geometry->x, geometry->y, geometry->width + border, geometry->height + border);
    return area.adjusted(-slack, -slack, slack, slack).contains(monitor);
}

/// The window manager's own window, by EWMH.
xcb_window_t windowManager(Connection& connection) {
    const xcb_atom_t check = connection.atom("_NET_SUPPORTING_WM_CHECK");
    const auto windows = PropertyRequest(connection, connection.root(), check).cardinals();
    return windows.empty() ? xcb_window_t(XCB_WINDOW_NONE) : windows.front();
}

/// Whether the window manager put another program's window into it. Those of i3 and IceWM are not
/// managed themselves, and IceWM has a window of its own in between. What a window manager draws
/// over the screen holds no other program's window and may well be a locker.
bool isFrame(Connection& connection, xcb_window_t window) {
    const uint32_t mask = ~xcb_get_setup(connection.get())->resource_id_mask;
    const auto isForeign = [&](xcb_window_t other) {
        return ((other ^ window) & mask) != 0;
    };
    if (isForeign(windowManager(connection))) {
        return false;
    }
    const auto inside = [&](xcb_window_t outer) {
        return childrenOf(connection, xcb_query_tree(connection.get(), outer));
    };
    return std::ranges::any_of(inside(window), [&](xcb_window_t child) {
        return isForeign(child) || std::ranges::any_of(inside(child), isForeign);
    });
}

} // namespace

CoverWatch::CoverWatch(Connection& connection, Changed changed, std::function<void()> newcomer)
    : connection_(connection), changed_(std::move(changed)), newcomer_(std::move(newcomer)) {
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.get(), connection.root(), XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection.get());
}

void CoverWatch::follow(xcb_window_t panel, QRect monitor) {
    const bool first = panel_ == XCB_WINDOW_NONE;
    panel_ = panel;
    monitor_ = monitor;
    if (first && askWhoHoldsInput(connection_)()) {
        for (const xcb_window_t window : stack()) {
            newcomers_.push_back({window, true});
        }
    }
    lookAgain();
}

void CoverWatch::handle(const xcb_generic_event_t& event) {
    if (lookedAt_ && static_cast<int32_t>(event.full_sequence - *lookedAt_) >= 0) {
        newcomers_.clear();
        lookedAt_.reset();
    }
    if (const auto* map = eventAs<xcb_map_notify_event_t>(event, XCB_MAP_NOTIFY)) {
        if (map->override_redirect != 0 && map->window != panel_) {
            newcomers_.push_back({map->window, false});
            lookAgain();
            newcomer_();
        }
    } else if (const auto* change =
                   eventAs<xcb_configure_notify_event_t>(event, XCB_CONFIGURE_NOTIFY)) {
        handleConfigure(*change);
    } else if (const auto* unmap = eventAs<xcb_unmap_notify_event_t>(event, XCB_UNMAP_NOTIFY)) {
        // Windows are unmapped before they are destroyed.
        if (std::ranges::find(covers_, unmap->window) != covers_.end()) {
            lookAgain();
        }
    }
}

void CoverWatch::handleConfigure(const xcb_configure_notify_event_t& change) {
    if (change.window == panel_) {
        const bool restacked =
            std::exchange(belowPanel_, change.above_sibling) != change.above_sibling;
        if (restacked && !(newcomers_.empty() && covers_.empty())) {
            for (Newcomer& newcomer : newcomers_) {
                newcomer.overtaken = true;
            }
            for (const xcb_window_t cover : covers_) {
                newcomers_.push_back({cover, true});
            }
            lookAgain();
        }
    } else if (change.override_redirect != 0 && change.width + 2 * slack >= monitor_.width() &&
               change.height + 2 * slack >= monitor_.height()) {
        lookAgain();
    }
}

void CoverWatch::lookAgain() {
    lookedAt_.reset();
    if (!staleSince_) {
        staleSince_ = std::chrono::steady_clock::now();
    }
}

void CoverWatch::expire(TimePoint /*now*/) {
    staleSince_.reset();
    const auto windows = stack();
    const auto panel = std::ranges::find(windows, panel_);
    if (panel == windows.end()) {
        return;
    }
    std::vector<xcb_window_t> overtaken;
    for (const Newcomer& newcomer : newcomers_) {
        if (newcomer.overtaken && std::find(windows.begin(), panel, newcomer.window) != panel) {
            overtaken.push_back(newcomer.window);
        }
    }
    overtaken = coversAmong(overtaken);
    if (!overtaken.empty()) {
        lowerPanelBelow(
            *std::find_first_of(windows.begin(), panel, overtaken.begin(), overtaken.end()));
    }
    const bool before = !covers_.empty();
    covers_ = coversAmong({panel + 1, windows.end()});
    covers_.insert(covers_.end(), overtaken.begin(), overtaken.end());
    if (before != !covers_.empty()) {
        changed_(!before);
    }
}

/// The windows below the root, lowest first.
std::vector<xcb_window_t> CoverWatch::stack() {
    const auto cookie = xcb_query_tree(connection_.get(), connection_.root());
    lookedAt_ = cookie.sequence;
    return childrenOf(connection_, cookie);
}

std::vector<xcb_window_t> CoverWatch::coversAmong(const std::vector<xcb_window_t>& windows) {
    std::vector<Questions> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        questions.push_back({window, xcb_get_window_attributes(connection_.get(), window),
                             xcb_get_geometry(connection_.get(), window)});
    }
    std::vector<xcb_window_t> covers;
    for (const Questions& asked : questions) {
        if (hides(connection_, asked, monitor_) && !isFrame(connection_, asked.window)) {
            covers.push_back(asked.window);
        }
    }
    return covers;
}

void CoverWatch::lowerPanelBelow(xcb_window_t window) {
    const uint32_t values[] = {window, XCB_STACK_MODE_BELOW};
    xcb_configure_window(connection_.get(), panel_,
                         XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values);
    xcb_flush(connection_.get());
}

} // namespace ravelo::x11
