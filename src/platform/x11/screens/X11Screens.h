#pragma once

#include "base/Listeners.h"
#include "platform/x11/connection/Events.h"
#include "platform/x11/screens/Monitors.h"
#include "platform/x11/screens/Struts.h"

#include <QObject>

class QScreen;

namespace ravelo::x11 {

/// The monitors as Qt knows them (RandR 1.2), less the bars that the window manager reports
/// (EWMH `_NET_CLIENT_LIST` and struts; without them nothing counts as reserved). Qt rounds a
/// monitor's size to whole logical pixels: at a fractional scale `native` may be off by one.
class X11Screens : public Screens {
public:
    /// Both must outlive it. Asks the X server once.
    X11Screens(Connection& connection, Events& events);

    [[nodiscard]] std::vector<Screen> all() const override;
    [[nodiscard]] std::optional<Screen> main() const override;
    [[nodiscard]] Handle onChange(std::function<void()> callback) override;

    [[nodiscard]] QPointF toLogical(QPoint native) const;
    [[nodiscard]] QPoint toNative(QPointF logical) const;

    /// The monitor with this id, or null; good until the event loop is entered again.
    [[nodiscard]] const Monitor* monitor(const QString& id) const;

private:
    void watch(QScreen* screen);
    void handle(const xcb_generic_event_t& event);
    void refreshSoon();
    void refresh();
    [[nodiscard]] std::vector<Monitor> read();
    void findBars();
    [[nodiscard]] std::vector<Strut> readStruts();

    Connection& connection_;
    const xcb_atom_t clientList_;
    const xcb_atom_t strut_;
    const xcb_atom_t strutPartial_;
    const xcb_atom_t windowType_;
    const xcb_atom_t dock_;

    /// Of the window manager's windows those that are docks or reserve something. Only these are
    /// watched: an ordinary window changes properties at every key press, and each would wake us.
    std::vector<xcb_window_t> bars_;

    std::vector<Monitor> monitors_;
    bool refreshing_ = false;
    Listeners<> listeners_;
    QObject context_;
    Handle subscription_;
};

} // namespace ravelo::x11
