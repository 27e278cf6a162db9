import QtQuick
import Ravelo

/// The collapsed panel: a handle at the screen's edge.
NotchFill {
    required property PanelHost host

    flare: 6
    bottomRadius: 8
    color: host.backdrop === Backdrop.Opaque ? Theme.bar : Theme.handle

    Box {
        objectName: "grip"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 5
        width: 32
        height: 3
        radius: 1.5
        color: Theme.grip
    }
}
