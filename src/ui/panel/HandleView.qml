pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Paint
import Ravelo.Panel
import Ravelo.Theme

/// The closed panel: a handle at the screen's edge.
NotchFill {
    id: handle

    required property int backdrop
    required property bool paused

    flare: 6
    bottomRadius: 8
    color: backdrop === Backdrop.Opaque ? Theme.bar : Theme.handle

    Box {
        objectName: "grip"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 5
        visible: !handle.paused
        width: 32
        height: 3
        radius: 1.5
        color: Theme.grip
    }

    Item {
        objectName: "pausedGrip"
        anchors.horizontalCenter: parent.horizontalCenter
        width: 32
        height: parent.height
        visible: opacity > 0
        opacity: handle.paused ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: handle.paused ? Theme.pausing : 0 }
        }

        Repeater {
            model: [0, 21]

            Box {
                required property int modelData
                x: modelData
                y: 5
                width: 11
                height: 3
                radius: 1.5
                color: Theme.pausedGrip
            }
        }

        SlantedLine {
            x: 12.65
            y: 2.85
            width: 6.7
            height: 7.3
            lineWidth: 1.5
            color: Theme.pausedStroke
        }
    }
}
