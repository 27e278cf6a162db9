import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// Shown in place of an empty list.
Item {
    id: empty

    property alias symbol: glyph.symbol
    property alias title: title.text
    property alias subtitle: subtitle.text
    /// An extra line below; it does not shift the others.
    property alias detail: detail.text

    /// At the bottom, where a toast may cover the text.
    readonly property real toastRoom: 56

    Column {
        id: column
        readonly property real room: (empty.height - height) / 2

        anchors.centerIn: parent
        anchors.verticalCenterOffset: Math.max(-room, Math.min(2, room - empty.toastRoom))

        Box {
            objectName: "emptyDisc"
            visible: empty.height >= 140
            anchors.horizontalCenter: parent.horizontalCenter
            width: 64
            height: 64
            radius: 32
            color: Theme.surface1

            Glyph {
                id: glyph
                anchors.centerIn: parent
                size: 28
                color: Theme.text3
            }
        }
        Item {
            width: 1
            height: empty.height >= 140 ? 16 : 0
        }
        Label {
            id: title
            objectName: "emptyTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            style: Theme.heading
            color: Theme.text1
        }
        Item {
            width: 1
            height: 4
        }
        Label {
            id: subtitle
            objectName: "emptySubtitle"
            anchors.horizontalCenter: parent.horizontalCenter
            style: Theme.bodyLoose
            color: Theme.text3

            Label {
                id: detail
                objectName: "emptyDetail"
                x: (parent.width - width) / 2
                y: parent.height
                width: Math.min(implicitWidth, empty.width - 48)
                visible: text !== ""
                style: Theme.bodyLoose
                color: Theme.text3
            }
        }
    }
}
