#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "panel/EdgeGuard.h"
#include "panel/ForeignDrag.h"
#include "panel/HoverHold.h"
#include "panel/TakenInput.h"
#include "platform/HotZone.h"
#include "platform/InputGrab.h"
#include "platform/PanelWindow.h"
#include "platform/Screens.h"
#include "shelf/FileDrop.h"

#include <QObject>
#include <QRectF>

#include <optional>
#include <vector>

namespace ravelo {

class AppSettings;
class ClipboardManager;
class DragMonitor;
class EdgeBarrier;
class FileTransfer;
class SessionLock;
class Store;

/// Decides whether the panel is collapsed or open, where it is and how large. Knows no
/// view: what is shown follows `isOpen`. Main thread only.
class NotchController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(bool showsBar READ showsBar NOTIFY collapsedChanged)
    Q_PROPERTY(bool timerEnded READ timerEnded NOTIFY collapsedChanged)
    Q_PROPERTY(double notch READ notch NOTIFY collapsedChanged)
    Q_PROPERTY(bool filesOver READ filesOver NOTIFY filesOverChanged)
    Q_PROPERTY(QSizeF collapsedSize READ collapsedSize NOTIFY collapsedChanged)

public:
    /// What the controller needs of the platform; all of it outlives the controller.
    struct Services {
        Scheduler& scheduler;
        Screens& screens;
        HotZone& zone;
        DragMonitor& drags;
        FileTransfer& transfers;
        EdgeBarrier* barrier; ///< Null if the display server has none.
        InputGrab& inputGrab;
        PanelWindow& window;
        std::vector<SessionLock*> locks; ///< The session is locked while any of them says so.
    };

    NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                    Services services);
    ~NotchController() override;

    [[nodiscard]] bool isOpen() const { return isOpen_; }

    /// Whether the session is locked.
    [[nodiscard]] bool isLocked() const;

    /// What the panel would open with, in logical pixels; empty without a screen.
    [[nodiscard]] QSizeF sizeToOpenWith();

    /// Whether the collapsed panel is the bar with the timer or the reminders, not the handle. It
    /// stays a while longer than the timer.
    [[nodiscard]] bool showsBar() const { return collapsed_.showsBar; }

    /// Whether the bar shows that the timer has just ended.
    [[nodiscard]] bool timerEnded() const { return collapsed_.timerEnded; }

    /// The width that the bar leaves free in its middle, in logical pixels; 0 for none.
    [[nodiscard]] double notch() const { return collapsed_.notch; }

    /// Of the handle or the bar, in logical pixels; a closing panel's window may still be larger.
    [[nodiscard]] QSizeF collapsedSize() const { return collapsed_.size; }

    /// Where the panel is, in global logical pixels.
    [[nodiscard]] QRectF frame() const { return frame_; }

    void positionCollapsed();
    void positionExpanded();
    void collapse();

    /// Opens at the user's request. If another program holds the input, tries again for a moment:
    /// it may be the menu or the key by which the request was made. Takes the keyboard only if
    /// nothing else would show that the user clicks elsewhere.
    void open();

    /// Closes at the user's request while the pointer may still be where it opens the panel:
    /// hovering opens only once the pointer has been elsewhere.
    Q_INVOKABLE void dismiss();

    /// By a key: opens with the keyboard in the panel, or closes. For `activationToken` see
    /// PanelWindow::requestFocus.
    void toggle(const QByteArray& activationToken = {});

    /// Closes and asks for the settings.
    Q_INVOKABLE void openSettings();

    /// A drag of another program has entered the panel's window: it opens once it is known to
    /// carry files. False if it is known to carry none.
    Q_INVOKABLE bool onDragEnter();

    /// That drag has left, or was given up.
    Q_INVOKABLE void onDragLeave();

    /// It was dropped on the panel; its files go to the shelf as they come. False if there are
    /// none. True if its source has not answered yet: refused, it would cancel the transfer.
    Q_INVOKABLE bool onDrop();

    /// Whether to accept the drag over the window: files, or not known yet.
    Q_INVOKABLE bool mayCarryFiles();

    /// Whether a drag with files is over the window.
    [[nodiscard]] bool filesOver() const { return filesOver_; }

    /// Files are being dragged out of the panel.
    void setDraggingOut(bool dragging);

    /// Parks files and opens to show them.
    void onFiles(const QList<QUrl>& urls);

    /// Puts a text, or a stored image, on the pasteboard without making a new clip of it.
    Q_INVOKABLE void copy(const QString& text);
    Q_INVOKABLE void copyImage(const QString& path);

    /// The user clicked into a text field: the window takes the keyboard.
    Q_INVOKABLE void typeFocus();

Q_SIGNALS:
    void isOpenChanged();
    void collapsedChanged();
    void filesOverChanged();
    void settingsRequested();

private:
    /// What the panel looks like while it is closed.
    struct Collapsed {
        bool showsBar = false;
        bool timerEnded = false;
        QSizeF size;
        double notch = 0;

        friend bool operator==(const Collapsed&, const Collapsed&) = default;
    };

    /// A request to open, repeated until `end`.
    struct Opening {
        Seconds end;
        enum class Keyboard { ifNeeded, requested } keyboard;
        QByteArray activationToken = {};
    };

    HotZone::Report evaluateHover(const HotZone::Sight& sight);
    void guardEdge(const HotZone::Sight& sight);
    void evaluateOpen(const HotZone::Sight& sight);
    void evaluateCollapsed(const HotZone::Sight& sight);
    void showTimerEnd();
    void openForFiles();
    void lookAtDrag();
    [[nodiscard]] HoverHold::Press pressOf(const HotZone::Sight& sight) const;
    [[nodiscard]] bool isDragOn(const HotZone::Sight& sight) const;
    void expand(const HotZone::Sight& sight, const InputGrab::Answer& grab);
    [[nodiscard]] bool isInputHeld(const HotZone::Sight& sight, const InputGrab::Answer& grab);
    void openBefore(Opening opening);
    void pressed(HotZone::Press press);
    void screensChanged();
    void scheduleClose();
    void resizeForShelf();
    [[nodiscard]] TakenInput::Look hideIfInputIsTaken();
    void hide();
    void lockChanged();
    void setCollapsed(const Collapsed& collapsed);
    void setFrame(const Screen& screen, QSizeF size, const QPainterPath& outline);
    void placeExpanded(const Screen& screen);
    [[nodiscard]] std::optional<Screen> screenOfPanel();
    [[nodiscard]] QSizeF sizeOn(const Screen& screen) const;

    Store& store_;
    ClipboardManager& clipboard_;
    AppSettings& settings_;
    Services services_;

    bool isOpen_ = false;
    bool awaitsPointer_ = false; ///< Opened by a request; it has not been hovered over yet.
    Collapsed collapsed_;
    /// The pointer was elsewhere at the last look: without another one, the panel closes.
    bool closeIsPutOff_ = false;
    QRectF frame_;
    QString screenId_;   ///< Of the screen that it is on.
    int stripTicks_ = 0; ///< Sights in a row with the pointer in the zone while collapsed.
    HoverHold hold_;
    bool draggingOut_ = false; ///< Files, out of the panel.
    bool dragOver_ = false;    ///< One of another program is over the window.
    bool filesOver_ = false;   ///< It is known to carry files.
    int closings_ = 0;         ///< How often the open panel has been closed.

    std::optional<EdgeGuard> guard_;
    ForeignDrag foreignDrag_;
    FileDrop drop_;
    TakenInput takenInput_;
    Handle closeWork_;
    Handle timerEndShown_; ///< While the bar shows it.
    Handle openWork_;      ///< Tries again to open.
    Handle reappearWork_;  ///< After the input was taken.
    Handle sights_;
    Handle pressMonitor_;
    Handle screensMonitor_;
    Handle dragMonitor_;
    std::vector<Handle> lockMonitors_;
};

} // namespace ravelo
