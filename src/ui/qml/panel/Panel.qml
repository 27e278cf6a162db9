import QtQuick
import Ravelo

/// All that the panel's window shows: a handle, or the content hanging from the same edge.
Item {
    id: panel

    required property PanelHost host

    HoverHandler {
        onHoveredChanged: panel.host.controller.setHovered(hovered)
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
