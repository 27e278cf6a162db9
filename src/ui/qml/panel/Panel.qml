import QtQuick
import Ravelo

/// All that the panel's window shows: a handle, or the content hanging from the same edge.
Item {
    id: panel

    required property PanelHost host

    HoverHandler {
        onHoveredChanged: panel.host.controller.setHovered(hovered)
    }

    // Files only, and only to be copied; what they are the controller learns by itself: here it
    // would have to be waited for.
    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onEntered: drag => {
            drag.accept(Qt.CopyAction);
            panel.host.controller.onDragEnter();
        }
        onPositionChanged: drag => drag.accept(Qt.CopyAction)
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            panel.host.controller.onDrop();
        }
    }

    HandleView {
        objectName: "handle"
        anchors.fill: parent
        visible: !slot.open
        host: panel.host
    }

    ContentSlot {
        id: slot
        anchors.horizontalCenter: parent.horizontalCenter
        focus: true
        host: panel.host
    }
}
