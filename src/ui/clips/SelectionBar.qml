import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// What can be done with several chosen clips.
Item {
    id: bar

    required property Clips clips

    implicitHeight: 28
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("%1 clips selected").arg(clips.selected)

    Label {
        id: count
        y: 6
        text: qsTr("%1 selected").arg(bar.clips.selected)
        style: Theme.strong
        color: Theme.text1
    }

    Box {
        id: dot
        x: count.width + 9
        y: 13
        width: 3
        height: 3
        radius: 1.5
        color: Theme.text4
    }

    Label {
        x: dot.x + 12
        y: 6
        width: Math.min(implicitWidth, buttons.x - x - 8)
        text: bar.clips.joined
        style: Theme.small
        color: Theme.text3
    }

    Row {
        id: buttons
        x: parent.width - width
        spacing: 8

        CapsuleButton {
            objectName: "clearSelection"
            ghost: true
            text: qsTr("Clear selection")
            onClicked: bar.clips.clearSelection()
        }

        CapsuleButton {
            objectName: "deleteSelected"
            symbol: "trash"
            text: qsTr("Delete")
            onClicked: bar.clips.removeSelected()
        }

        CapsuleButton {
            objectName: "copySelected"
            primary: true
            symbol: "doc.on.doc"
            text: qsTr("Copy %1").arg(bar.clips.selected)
            onClicked: bar.clips.copySelected()
        }
    }
}
