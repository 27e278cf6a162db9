import QtQuick
import Ravelo

/// Where the content of the open panel is made, kept hidden and shown.
FocusScope {
    id: slot

    required property PanelHost host

    required property bool dropTargeted

    readonly property bool open: host.controller.isOpen

    // Its size does not depend on the window's, which is small until the panel opens.
    width: host.contentSize.width
    height: host.contentSize.height
    visible: open
    // What floated over the last content has taken it.
    onOpenChanged: {
        if (open) {
            focus = true;
        }
    }

    Loader {
        anchors.fill: parent
        active: slot.host.hasContent
        focus: true
        // qmllint disable unqualified
        sourceComponent: ContentView {
            host: slot.host
            dropTargeted: slot.dropTargeted
        }
        // qmllint enable unqualified
    }

    NumberAnimation {
        target: slot
        property: "opacity"
        running: slot.open
        // The fade of 60 ms joined at its second frame: nothing would be seen of the first.
        from: 16 / Theme.opening
        to: 1
        duration: Theme.opening - 16
    }
}
