import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A reminder with a remove button.
Item {
    id: reminder

    required property int index
    required property string modelData
    readonly property alias cross: cross

    /// It received keyboard focus.
    signal reached
    signal removed(byKey: bool)
    signal menuRequested(place: point)

    width: text.width + 16
    height: 24
    Accessible.role: Accessible.ListItem
    Accessible.name: modelData

    Label {
        id: text
        y: 4
        text: reminder.modelData
        style: Theme.body
        color: Theme.roundGlyph
    }

    Pressable {
        id: cross
        objectName: "removeReminder"
        name: qsTr("Remove %1").arg(reminder.modelData)
        x: parent.width - 13
        y: 4
        width: 16
        height: 16
        radius: 8
        rest: Theme.none
        hover: Theme.none
        press: Theme.none
        onClicked: reminder.removed(activeFocus)
        onActiveFocusChanged: {
            if (activeFocus) {
                reminder.reached();
            }
        }

        Glyph {
            anchors.centerIn: parent
            size: 10
            symbol: "xmark"
            color: cross.hovered ? Theme.text1 : Theme.removeGlyph
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => reminder.menuRequested(Qt.point(mouse.x, mouse.y))
    }
}
