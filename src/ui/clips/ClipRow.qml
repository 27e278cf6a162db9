import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Theme

/// A row of the clipboard history.
Card {
    id: row

    required property Clips clips
    required property bool shown
    required property int index
    required property bool pinned
    required property string imageFileName
    /// About a copy that was not kept: cannot be copied or pinned and has no digit.
    readonly property bool tooLarge: index === clips.list.tooLargeRow
    readonly property int place: clips.list.tooLargeRow >= 0 && index > clips.list.tooLargeRow
        ? index - 1 : index
    required icon
    required title
    required subtitle
    required marks
    required order

    signal deleted

    objectName: "card" + index
    highlighted: pinned
    digit: place < 9 && !tooLarge ? place + 1 : ""
    titleColor: tooLarge ? Theme.text2 : Theme.text1
    // A hidden panel decodes nothing.
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
