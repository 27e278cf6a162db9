import QtQuick
import Ravelo.Controls
import Ravelo.Shelf

/// Copies the file that was parked last.
RoundButton {
    required property ShelfFiles shelfFiles

    visible: shelfFiles.parked.count > 0
    symbol: "doc.on.doc"
    glyphSize: 17
    tip: qsTr("Copy the last file added to the Shelf")
    onClicked: shelfFiles.copyLast()
}
