#pragma once

#include "base/Handle.h"
#include "platform/Screens.h"

#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>

namespace ravelo {

/// The place at the top edge of a screen that opens the panel, and the pointer's position relative
/// to it and to the panel. A display server may reveal where the pointer is everywhere, or only
/// that it entered or left a window of ours: then it is in the zone, on the panel and near it at
/// once, or not at all. Main thread.
class HotZone {
public:
    struct Sight {
        /// The screen that the pointer is on, the main one if that is unknown; nothing without
        /// screens.
        std::optional<Screen> screen;

        bool inZone = false;     ///< Hovering here opens the panel.
        bool inDragZone = false; ///< Files that are dragged to here open it.
        bool onPanel = false;
        bool nearPanel = false; ///< On the panel, or so near that it stays open.

        /// Whether any button is down, or was pressed since the last report.
        bool buttonDown = false;
        bool leftDown = false; ///< Right now.

        /// Global logical pixels; nothing if the display server does not reveal it.
        std::optional<QPointF> location;
    };

    enum class Report { onChange, again };

    enum class Press { onPanel, onOwnWindow, elsewhere };

    virtual ~HotZone() = default;

    /// The present state; at most one round trip. Does not count as a report.
    [[nodiscard]] virtual Sight look() = 0;

    /// Calls back after each change, and after each `lookAgain`. If the answer is `again`, reports
    /// again within 0.1 s even if nothing has changed. Stops reporting while nothing does.
    [[nodiscard]] virtual Handle onSight(std::function<Report(const Sight&)> callback) = 0;

    /// Calls back for each press of the left or right button anywhere, as far as the display server
    /// reveals them.
    [[nodiscard]] virtual Handle onPress(std::function<void(Press)> callback) = 0;

    /// Whether presses outside our own windows are reported. If not, an open panel has to close
    /// when the pointer leaves it.
    [[nodiscard]] virtual bool reportsPressesElsewhere() const = 0;

    /// Whether they are reported only while the panel has the keyboard.
    [[nodiscard]] virtual bool needsKeyboardForPresses() const { return false; }

    /// Where the panel is now, in global logical pixels. Implies `lookAgain`.
    virtual void setPanel(const QRectF& frame) = 0;

    /// Something is about to be dragged out of the panel, or no longer is: no invisible surface of
    /// ours may be under the drag.
    virtual void setDraggingOut(bool /*dragging*/) {}

    /// Something else has changed that the next report must be judged by: reports soon.
    virtual void lookAgain() = 0;
};

} // namespace ravelo
