#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "platform/Screens.h"

#include <QObject>
#include <QRectF>
#include <QUrl>

namespace ravelo {

class AppSettings;
class ClipboardManager;
class DragMonitor;
class PanelWindow;
class Pointer;
class Screens;
class Store;

/// Decides whether the panel is collapsed or open, where it stands and how large it is. Knows no
/// view: the content follows `isOpen`. Main thread only.
class NotchController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    struct Services {
        Scheduler& scheduler;
        Screens& screens;
        Pointer& pointer;
        DragMonitor& drags;
        PanelWindow& window;
    };

    NotchController(Store& store, ClipboardManager& clipboard, AppSettings& settings,
                    Services services);
    ~NotchController() override;

    [[nodiscard]] bool isOpen() const;
    /// Where the panel stands, in global logical pixels.
    [[nodiscard]] QRectF frame() const;

    void positionCollapsed();
    Q_INVOKABLE void positionExpanded();
    Q_INVOKABLE void collapse();
    void toggle();

    /// For display servers that tell of the pointer only over our own window: whether it is there.
    Q_INVOKABLE void setHovered(bool hovered);

    /// Puts a text, or a stored image, on the pasteboard without making a new clip of it.
    Q_INVOKABLE void copy(const QString& text);
    Q_INVOKABLE void copyImage(const QString& path);

    /// The user clicked into a text field: the window takes the keyboard.
    Q_INVOKABLE void typeFocus();

Q_SIGNALS:
    void isOpenChanged();
};

} // namespace ravelo
