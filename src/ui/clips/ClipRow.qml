import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Theme

/// One entry of the clipboard history.
Card {
    id: row

    required property Clips clips
    required property bool shown
    required property int index
    required property bool pinned
    required property string imageFileName
    /// It tells of a copy that was not kept: nothing to copy or pin, and no digit of its own.
    readonly property bool tooLarge: index === clips.list.tooLargeRow
    readonly property int place: clips.list.tooLargeRow >= 0 && index > clips.list.tooLargeRow
        ? index - 1 : index
    required icon
    required title
    required subtitle

    signal deleted

    objectName: "card" + index
    highlighted: pinned
    digit: place < 9 && !tooLarge ? place + 1 : ""
    titleColor: tooLarge ? Theme.text2 : Theme.text1
    // Nothing is decoded for a panel that is not seen.
    thumbnail: shown && imageFileName !== ""
        ? "image://thumb/" + Theme.radiusTile * Screen.devicePixelRatio + "/" + imageFileName : ""

    MiniButton {
        objectName: "pin"
        visible: !row.tooLarge
        name: row.pinned ? qsTr("Unpin") : qsTr("Pin")
        symbol: row.pinned ? "pin.slash" : "pin"
        onClicked: row.clips.togglePin(row.index)
    }

    MiniButton {
        objectName: "delete"
        name: row.tooLarge ? qsTr("Dismiss") : qsTr("Delete")
        symbol: "xmark"
        onClicked: row.deleted()
    }
}
