import QtQuick
import Ravelo

/// One entry of the clipboard history.
Card {
    id: row

    required property PanelHost host
    required property bool shown
    required property int index
    required property var clipId
    required property bool pinned
    required property string imageFileName
    required icon
    required title
    required subtitle

    objectName: "card" + index
    highlighted: pinned
    digit: index < 9 ? index + 1 : ""
    // Nothing is decoded for a panel that is not seen.
    thumbnail: shown && imageFileName !== ""
        ? "image://thumb/" + Theme.radiusTile * Screen.devicePixelRatio + "/" + imageFileName : ""

    MiniButton {
        objectName: "pin"
        name: row.pinned ? "Unpin" : "Pin"
        symbol: row.pinned ? "pin.slash" : "pin"
        onClicked: row.host.store.togglePin(row.clipId)
    }

    MiniButton {
        objectName: "delete"
        name: "Delete"
        symbol: "xmark"
        onClicked: row.host.store.deleteClip(row.clipId)
    }
}
