import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// What a popover shows: its content on a surface, in front of what catches presses outside.
Item {
    id: floating

    required property Popover popover

    readonly property alias pressed: outside.pressed

    opacity: popover.opened ? 1 : 0

    Behavior on opacity {
        NumberAnimation {
            duration: floating.popover.opened ? Theme.floatingIn : Theme.floatingOut
            easing.type: Easing.OutCubic
        }
    }

    MouseArea {
        id: outside
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: floating.popover.close()
        onWheel: wheel => wheel.accepted = true
    }

    Item {
        function kept(at: real, size: real, room: real): real {
            const margin = floating.popover.margin;
            return Math.round(Math.max(margin, Math.min(at, room - margin - size)));
        }

        readonly property bool centred: floating.popover.centred

        x: kept(floating.popover.corner.x - width * (centred ? 0.5 : floating.popover.growsLeft ? 1 : 0), width, floating.width)
        y: kept(floating.popover.corner.y - (centred ? height / 2 : 0), height, floating.height)
        width: content.implicitWidth + 2 * floating.popover.pad
        height: content.implicitHeight + 2 * floating.popover.pad
        scale: floating.popover.opened ? 1 : 1 - Theme.move(3) / 100
        transformOrigin: centred ? Item.Center : floating.popover.growsLeft ? Item.TopRight : Item.TopLeft

        Behavior on scale {
            NumberAnimation {
                duration: floating.popover.opened ? Theme.floatingIn : Theme.floatingOut
                easing.type: Easing.OutCubic
            }
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.48)
            blur: 32
            drop: 12
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.30)
            blur: 6
            drop: 2
        }

        Box {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Theme.floating
            lineColor: Theme.lineFloating
            lineWidth: 1
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Loader {
            id: content
            anchors.fill: parent
            anchors.margins: floating.popover.pad
            focus: true
            Component.onCompleted: setSource(floating.popover.content, { popover: floating.popover })
        }
    }
}
