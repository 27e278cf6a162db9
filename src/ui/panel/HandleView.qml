import QtQuick
import Ravelo.Paint
import Ravelo.Panel
import Ravelo.Theme

/// The closed panel: a handle at the screen's edge.
NotchFill {
    required property int backdrop

    flare: 6
    bottomRadius: 8
    color: backdrop === Backdrop.Opaque ? Theme.bar : Theme.handle

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
