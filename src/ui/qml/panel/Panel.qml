import QtQuick
import Ravelo

/// All that the panel's window shows: a handle, or the content hanging from the same edge.
Item {
    id: panel

    required property PanelHost host

    readonly property bool open: host.controller.isOpen

    HandleView {
        objectName: "handle"
        anchors.fill: parent
        visible: !panel.open
        host: panel.host
    }

    // Its size does not depend on the window's, which is small until the panel opens.
    Loader {
        id: content
        anchors.horizontalCenter: parent.horizontalCenter
        width: panel.host.contentSize.width
        height: panel.host.contentSize.height
        active: panel.host.hasContent
        visible: panel.open
        focus: true
        sourceComponent: ContentView {
            host: panel.host
        }
    }

    NumberAnimation {
        target: content
        property: "opacity"
        running: panel.open
        from: 0
        to: 1
        duration: Theme.opening
    }
}
