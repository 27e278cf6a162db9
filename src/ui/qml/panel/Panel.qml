import QtQuick
import Ravelo

/// All that the panel's window shows: a handle, a bar, or the content, hanging from the same edge.
Item {
    id: panel

    required property PanelHost host

    HoverHandler {
        onHoveredChanged: panel.host.controller.setHovered(hovered)
    }

    // Files only, and only to be copied; what they are the controller learns by itself: here it
    // would have to be waited for. Not what is dragged out of the panel, and back.
    DropArea {
        id: drop
        objectName: "drop"

        function answer(event: DragEvent, accept: bool) {
            if (accept) {
                event.accept(Qt.CopyAction);
            } else {
                event.accepted = false;
            }
        }

        anchors.fill: parent
        keys: ["text/uri-list", "application/vnd.portal.filetransfer", "application/vnd.portal.files"]
        onEntered: drag => answer(drag, !drag.source && panel.host.controller.onDragEnter())
        onPositionChanged: drag => answer(drag, panel.host.controller.mayCarryFiles())
        onExited: panel.host.controller.onDragLeave()
        onDropped: drop => answer(drop, panel.host.controller.onDrop())
    }

    // Not as large as the window: it shrinks a moment after the panel has closed.
    HandleView {
        objectName: "handle"
        width: panel.host.controller.collapsedSize.width
        height: panel.host.controller.collapsedSize.height
        visible: !slot.open && !panel.host.controller.showsBar
        host: panel.host
    }

    TimerBarView {
        id: bar
        objectName: "bar"
        width: panel.host.controller.collapsedSize.width
        height: panel.host.controller.collapsedSize.height
        visible: !slot.open && panel.host.controller.showsBar
        host: panel.host
        notch: panel.host.controller.notch
        ended: panel.host.controller.timerEnded
    }

    Binding {
        target: panel.host.timerFace
        property: "shown"
        value: (bar.visible || slot.open) && panel.Window.visibility !== Window.Hidden
    }

    Binding {
        target: Theme
        property: "reducedMotion"
        value: panel.host.reducedMotion
    }

    Binding {
        target: Theme
        property: "translucent"
        value: panel.host.backdrop !== Backdrop.Opaque
    }

    ContentSlot {
        id: slot // Not centred: the window may still be as narrow as the handle.
        focus: true
        host: panel.host
        dropTargeted: panel.host.controller.filesOver
    }
}
