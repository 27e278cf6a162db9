import QtQuick
import Ravelo

/// The parked files and those that have been received.
FocusScope {
    id: tab

    required property PanelHost host
    required property bool shown
    /// Files are being dragged over the panel.
    required property bool dropTargeted
    /// Height of what is above the tabs and scrolls away with all of this; 0 if it stays.
    required property real head
    readonly property Flickable flick: page
    /// Too low for two lists that scroll by themselves.
    readonly property bool whole: head > 0 || height < 300

    readonly property bool empty: host.shelf.count === 0

    onShownChanged: host.sending.setShown(shown)
    Component.onCompleted: host.sending.setShown(shown)
    Component.onDestruction: host.sending.setShown(false)

    // Files may go, or come back, meanwhile.
    Timer {
        running: tab.shown && !tab.empty
        interval: 2000
        repeat: true
        onTriggered: tab.host.shelf.lookForMissing()
    }

    FadingEnds {
        id: ends
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
            host: tab.host
        }

        ShelfGrid {
            id: grid
            objectName: "grid"
            focus: true
            y: 44
            width: page.width
            height: tab.whole ? tab.host.shelf.height
                              : Math.min(tab.host.shelf.height, tab.height - y - 16 - received.least)
            sightTop: tab.whole ? page.contentY - y : 0
            sightHeight: tab.whole ? page.height : height
            onReached: (top, bottom) => {
                if (tab.whole) {
                    page.show(top === 0 ? 0 : y + top, y + bottom);
                }
            }
            visible: !tab.empty
            host: tab.host
            shown: tab.shown
            onMenuRequested: (tile, place, byKey) => {
                menu.file = tab.host.shelf.fileAt((tile as ShelfTileView).place);
                menu.parked = true;
                menu.openAt(tile.mapToItem(menu.parent, place.x, place.y), false, byKey);
            }
        }

        // As the card does where there is nothing yet.
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
            host: tab.host
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
        name: "File"
        host: tab.host
        entries: {
            const all = [
                { text: "Open", chosen: () => tab.host.openFile(file) },
                { text: "Show in folder", chosen: () => tab.host.showInFolder(file) }
            ];
            if (!parked) {
                all.push({ text: "Put on the shelf", chosen: () => tab.host.shelf.park(file) });
            }
            return all;
        }
    }
}
