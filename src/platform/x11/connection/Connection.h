#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <span>
#include <vector>

namespace ravelo::x11 {

/// xcb's replies and events are freed with free().
struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply or an event of xcb; null if the server answered with an error or is gone.
template <typename T>
using Owned = std::unique_ptr<T, FreeDeleter>;

/// A connection to the X server beside Qt's. Requests may be sent from any thread; the
/// names of atoms are cached without a lock and belong to the thread that uses the connection.
class Connection {
public:
    /// Connects to $DISPLAY and negotiates XFixes 5 and the X Input Extension 2.2 (before 2.1 raw
    /// events stop during grabs); fails if the server has less.
    [[nodiscard]] static Result<std::unique_ptr<Connection>> create();

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    [[nodiscard]] xcb_connection_t* get() const { return xcb_; }

    [[nodiscard]] xcb_window_t root() const { return screen_->root; }

    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }

    /// Whether the server is gone; nothing more will come.
    [[nodiscard]] bool isBroken() const { return xcb_connection_has_error(xcb_) != 0; }

    /// The `response_type` of the first XFixes event.
    [[nodiscard]] uint8_t xfixesFirstEvent() const { return xfixesFirstEvent_; }

    /// The `extension` of the generic events that belong to the X Input Extension.
    [[nodiscard]] uint8_t xinputOpcode() const { return xinputOpcode_; }

    /// The atom of this name; a round trip on first use. XCB_ATOM_NONE if the
    /// server is gone.
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name);

    /// The names of these atoms, empty for one that does not exist; at most one round trip.
    [[nodiscard]] std::vector<QByteArray> names(std::span<const xcb_atom_t> atoms);

private:
    Connection(xcb_connection_t* xcb, xcb_screen_t* screen) : xcb_(xcb), screen_(screen) {}

    [[nodiscard]] Result<void> negotiate();

    xcb_connection_t* xcb_;
    xcb_screen_t* screen_;
    uint8_t xfixesFirstEvent_ = 0;
    uint8_t xinputOpcode_ = 0;
    std::map<QByteArray, xcb_atom_t> atoms_;
    std::map<xcb_atom_t, QByteArray> names_;
};

/// Recognizes windows of this program's Qt. The server gives every client a range of IDs of its own
/// at the start.
class OwnClient {
public:
    /// Main thread, after the application object.
    [[nodiscard]] static OwnClient ofQt();

    [[nodiscard]] bool owns(xcb_window_t window) const {
        return window != XCB_NONE && (window & ~mask_) == base_;
    }

    /// The same for all windows of one client.
    [[nodiscard]] uint32_t clientOf(xcb_window_t window) const { return window & ~mask_; }

private:
    OwnClient(uint32_t base, uint32_t mask) : base_(base), mask_(mask) {}

    uint32_t base_;
    uint32_t mask_;
};

} // namespace ravelo::x11
