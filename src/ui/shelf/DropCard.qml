import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The drop target, highlighted while files are dragged over it.
Box {
    id: card

    property bool targeted: false

    implicitHeight: 176
    radius: Theme.radiusTray
    color: targeted ? Theme.dropTarget : Theme.surface1

    Behavior on color {
        ColorAnimation {
            duration: Theme.dropping
            easing.type: Easing.OutCubic
        }
    }

    Box {
        x: 0.25
        y: 0.25
        width: parent.width - 0.5
        height: parent.height - 0.5
        radius: Theme.radiusTray
        lineColor: card.targeted ? Theme.dropTargetLine : Theme.dropLine
        lineWidth: 1.5
        dash: 6

        Behavior on lineColor {
            ColorAnimation {
                duration: Theme.dropping
                easing.type: Easing.OutCubic
            }
        }
    }

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 1

        Box {
            objectName: "dropDisc"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 52
            height: 52
            radius: 26
            color: card.targeted ? Theme.accent : Theme.surface2

            Glyph {
                anchors.centerIn: parent
                size: 24
                symbol: "tray.full"
                color: card.targeted ? Theme.accentGlyph : Theme.text2
            }
        }
        Item {
            width: 1
            height: 12
        }
        Label {
            objectName: "dropTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Drop files here")
            style: Theme.heading
            color: Theme.text1
        }
        Item {
            width: 1
            height: 2
        }
        Label {
            objectName: "dropSubtitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Park them, then drag out or send with AirDrop")
            style: Theme.bodyLoose
            color: Theme.text3
        }
    }
}
