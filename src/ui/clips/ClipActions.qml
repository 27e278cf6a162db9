import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Theme

/// The buttons of a clip's row.
Row {
    id: row

    required property ClipRow card

    spacing: 4

    Timer {
        interval: 10000
        running: row.card.held
        onTriggered: row.card.hide()
    }

    MiniButton {
        objectName: "reveal"
        visible: row.card.secret
        name: qsTr("Reveal while held")
        tip: qsTr("Hold to reveal")
        symbol: "eye"
        rest: row.card.held ? Theme.pressedMini : Theme.surface3
        onPressedChanged: pressed ? row.card.reveal() : row.card.hide()
        onClicked: {
            if (activeFocus && !hovered) {
                row.card.reveal();
            }
        }
        Keys.onReleased: event => {
            if (!event.isAutoRepeat) {
                row.card.hide();
            }
        }
    }

    MiniButton {
        objectName: "pin"
        visible: !row.card.tooLarge && !row.card.secret
        name: row.card.pinned ? qsTr("Unpin") : qsTr("Pin")
        symbol: row.card.pinned ? "pin.slash" : "pin"
        onClicked: row.card.clips.togglePin(row.card.index)
    }

    MiniButton {
        objectName: "delete"
        name: row.card.tooLarge ? qsTr("Dismiss") : qsTr("Delete")
        symbol: "xmark"
        onClicked: row.card.deleted()
    }
}
