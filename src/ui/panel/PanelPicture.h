#pragma once

#include "base/Handle.h"

#include <QObject>
#include <QQuickItemGrabResult>
#include <QSharedPointer>

class QQuickWindow;

namespace ravelo {

class AgingRows;
class NotchController;
class PanelState;
class PanelWindow;
class Scheduler;
class Usage;

/// Keeps a picture of the closed panel's content with the panel's window, so that opening shows
/// something before anything is rendered; not if the display server cannot show it. Dropped
/// once it is outdated and cannot be drawn again, as behind a locked screen. Main thread.
class PanelPicture : public QObject {
    Q_OBJECT

public:
    /// All outlive this.
    struct Services {
        QQuickWindow& window;
        PanelWindow& panel;
        const NotchController& controller;
        PanelState& state;
        AgingRows& rows; ///< The list that the panel usually opens with.
        Usage& usage;    ///< Updates itself only while the panel is open.
        Scheduler& scheduler;
    };

    explicit PanelPicture(Services services);

    /// Something that the panel shows has changed: the picture is made again when nothing changes
    /// any more.
    void refreshSoon();

private:
    void make();
    void keep(const QImage& picture);

    Services services_;
    bool isUseless_ = false; ///< The window cannot show it.
    Handle waiting_;
    QSharedPointer<QQuickItemGrabResult> making_;
};

} // namespace ravelo
