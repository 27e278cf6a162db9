import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Shelf
import Ravelo.Theme
import Ravelo.Vault

/// The parked and the received files.
TabPage {
    id: tab

    readonly property ShelfFiles shelfFiles: feature as ShelfFiles
    /// Not tall enough for two lists that scroll separately.
    readonly property bool whole: head > 0 || height < 300

    flick: page

    readonly property bool empty: shelfFiles.parked.count === 0

    onShownChanged: shelfFiles.sending.setShown(shown)
    Component.onCompleted: shelfFiles.sending.setShown(shown)
    Component.onDestruction: shelfFiles.sending.setShown(false)

    // Files can be deleted or restored meanwhile.
    Timer {
        running: tab.shown && !tab.empty
        interval: 2000
        repeat: true
        onTriggered: tab.shelfFiles.parked.lookForMissing()
    }

    LockedView {
        objectName: "lockedShelf"
        visible: Vault.locked
        focus: Vault.locked
        shown: tab.shown
        y: tab.head
        width: parent.width
        height: parent.height - y
    }

    FadingEnds {
        id: ends
        visible: !Vault.locked
        anchors.fill: parent
        length: tab.whole ? Math.min(26, Math.max(0, page.contentHeight - page.contentY - page.height)) : 0
        topLength: tab.whole ? Math.min(18, Math.max(0, page.contentY)) : 0
    }

    Flickable {
        id: page
        parent: ends.inside

        function show(top: real, bottom: real) {
            const wanted = Math.max(bottom + 26 - height, Math.min(contentY, top > 0 ? top : -topMargin));
            contentY = Math.max(-topMargin, Math.min(wanted, contentHeight - height));
        }

        anchors.fill: parent
        clip: tab.whole
        interactive: tab.whole
        boundsBehavior: Flickable.StopAtBounds
        topMargin: tab.head
        onTopMarginChanged: contentY = -topMargin
        contentHeight: tab.whole ? received.y + received.height : height - tab.head
        onContentHeightChanged: returnToBounds()

        DropCard {
            objectName: "dropCard"
            y: 4
            width: page.width
            visible: tab.empty
            targeted: tab.dropTargeted
        }

        ShelfHeader {
            id: header
            objectName: "shelfHeader"
            y: 4
            width: page.width
            visible: !tab.empty
            shelfFiles: tab.shelfFiles
        }

        ShelfGrid {
            id: grid
            objectName: "grid"
            focus: !Vault.locked
            y: 44
            width: page.width
            height: tab.whole ? tab.shelfFiles.parked.height
                              : Math.min(tab.shelfFiles.parked.height, tab.height - y - 16 - received.minHeight)
            sightTop: tab.whole ? page.contentY - y : 0
            sightHeight: tab.whole ? page.height : height
            onReached: (top, bottom) => {
                if (tab.whole) {
                    page.show(top === 0 ? 0 : y + top, y + bottom);
                }
            }
            visible: !tab.empty
            shelfFiles: tab.shelfFiles
            shown: tab.shown
            onMenuRequested: (tile, place, byKey) => {
                menu.file = tab.shelfFiles.parked.fileAt((tile as ShelfTileView).place);
                menu.parked = true;
                menu.openAt(tile.mapToItem(menu.parent, place.x, place.y), false, byKey);
            }
        }

        // Like the card that is shown when empty.
        Box {
            anchors.fill: grid
            anchors.margins: -4
            visible: tab.dropTargeted && !tab.empty
            radius: Theme.radiusTray + 4
            color: Theme.dropTarget
            lineColor: Theme.dropTargetLine
            lineWidth: 1.5
            dash: 6
        }

        ReceivedFiles {
            id: received
            objectName: "received"
            y: tab.empty ? 196 : grid.y + grid.height + 16
            width: page.width
            height: tab.whole ? full : tab.height - y
            shelfFiles: tab.shelfFiles
            shown: tab.shown
            onMenuRequested: (row, place, byKey) => {
                menu.file = (row as ReceivedRow).file;
                menu.parked = false;
                menu.openAt(row.mapToItem(menu.parent, place.x, place.y), false, byKey);
            }
        }
    }

    Menu {
        id: menu

        property url file
        property bool parked

        objectName: "fileMenu"
        plain: true
        name: qsTr("File")
        entries: {
            const all = [
                { text: qsTr("Open"), chosen: () => tab.shelfFiles.open(file) },
                { text: qsTr("Show in folder"), chosen: () => tab.shelfFiles.showInFolder(file) }
            ];
            if (parked) {
                all.push({
                    text: qsTr("Remove"),
                    chosen: () => {
                        tab.shelfFiles.parked.remove(file);
                        grid.goOn();
                    }
                });
            } else {
                all.push({ text: qsTr("Add to shelf"), chosen: () => tab.shelfFiles.parked.park(file) });
            }
            return all;
        }
    }
}
