#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "panel/HoverTick.h"
#include "platform/PanelWindow.h"
#include "platform/Screens.h"

#include <QObject>
#include <QRectF>

#include <optional>

namespace ravelo {

class AppSettings;
class ClipboardManager;
class DragMonitor;
class Pointer;
class Store;
struct PointerState;

/// Decides whether the panel is collapsed or open, where it stands and how large it is. Knows no
/// view: what is shown follows `isOpen`. Main thread only.
class NotchController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    /// What the controller needs of the platform; all of it outlives the controller.
    struct Services {
        Scheduler& scheduler;
        Screens& screens;
        Pointer& pointer;
        DragMonitor& drags;
        PanelWindow& window;
    };

    NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                    Services services, HoverTick::Rest rest = HoverTick::Rest::whenStill);
    ~NotchController() override;

    [[nodiscard]] bool isOpen() const { return isOpen_; }

    /// Where the panel stands, in global logical pixels.
    [[nodiscard]] QRectF frame() const { return frame_; }

    void positionCollapsed();
    void positionExpanded();
    void collapse();

    /// Closes at the user's wish while the pointer may rest where it would open the panel again:
    /// hovering opens only once the pointer has been elsewhere.
    Q_INVOKABLE void dismiss();
    void toggle();

    /// Tells whether the pointer is over the window, for display servers that tell its place
    /// nowhere else.
    Q_INVOKABLE void setHovered(bool hovered);

    /// Puts a text, or a stored image, on the pasteboard without making a new clip of it.
    Q_INVOKABLE void copy(const QString& text);
    Q_INVOKABLE void copyImage(const QString& path);

    /// The user clicked into a text field: the window takes the keyboard.
    Q_INVOKABLE void typeFocus();

Q_SIGNALS:
    void isOpenChanged();

private:
    /// What must stand still for the tick to rest.
    struct Seen {
        std::optional<QPointF> location;
        bool buttonDown = false;
        qint64 dragCount = 0;

        friend bool operator==(const Seen&, const Seen&) = default;
    };

    HoverTick::Next evaluateHover();
    void evaluateOpen(bool inZone, const PointerState& pointer);
    void evaluateCollapsed(bool inZone, const Screen& screen, const PointerState& pointer);
    [[nodiscard]] bool isFileDragNear(const Screen& screen, const PointerState& pointer) const;
    [[nodiscard]] bool isOver(const QRectF& area, const PointerState& pointer) const;
    [[nodiscard]] PointerState look();
    [[nodiscard]] std::optional<Screen> screen();
    void pressedSomewhere();
    void screensChanged();
    void scheduleClose();
    void setFrame(const Screen& screen, QSizeF size, const QPainterPath& outline);
    void placeExpanded(const Screen& screen);

    Store& store_;
    ClipboardManager& clipboard_;
    AppSettings& settings_;
    Services services_;

    bool isOpen_ = false;
    QRectF frame_;
    int stripTicks_ = 0;       ///< Ticks in a row with the pointer in the zone while collapsed.
    qint64 idleDragCount_ = 0; ///< The drag count last seen with no button down.
    bool awaitsLeave_ = false; ///< Dismissed under the pointer: hovering counts once it has left.
    bool hovered_ = false;
    bool unseenPress_ = false; ///< A button was down at a look between two ticks.
    Seen lastSeen_;

    HoverTick tick_;
    Handle closeWork_;
    Handle pressMonitor_;
    Handle screensMonitor_;
    Handle dragMonitor_;
};

} // namespace ravelo
