pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Paint
import Ravelo.Shelf
import Ravelo.Text
import Ravelo.Theme

/// The parked files with one tray per stack. Only visible tiles exist.
FocusScope {
    id: grid

    required property ShelfFiles shelfFiles
    required property bool shown

    readonly property ShelfContents shelf: shelfFiles.parked
    /// The file with the keyboard cursor, -1 for none; can be out of range.
    property int wanted: -1
    readonly property int current: Math.min(wanted, shelf.count - 1)
    readonly property int count: shelf.count
    /// The focus has been elsewhere in the panel. Before that it is only here because a key opened
    /// the panel, and the next keys may be meant for another program.
    property bool wasElsewhere: false
    readonly property Item keyboard: Window.activeFocusItem

    /// The part that is visible in the enclosing flickable.
    property real sightTop: 0
    property real sightHeight: height

    /// Scroll to show a tile: its top (0 in the first row) and bottom.
    signal reached(real top, real bottom)

    signal menuRequested(Item tile, point place, bool byKey)

    function go(place: int) {
        wanted = Math.max(0, Math.min(place, shelf.count - 1));
        const rect = shelf.rectOf(current);
        const margin = 8;
        flick.contentY = Math.max(0, Math.min(rect.y - margin, Math.max(flick.contentY,
            rect.y + rect.height + margin - flick.height)));
        reached(rect.y <= margin ? 0 : rect.y, rect.y + rect.height);
        see();
        tileAt(current)?.forceActiveFocus();
    }

    /// The focused file may have been removed.
    function goOn() {
        if (activeFocus && current >= 0) {
            go(current);
        }
    }

    /// By arrow key; the first press goes to the first file.
    function step(place: int) {
        go(current < 0 ? 0 : place);
    }

    function isAround(item: Item): bool {
        let around = grid;
        while (around && around !== item) {
            around = around.parent;
        }
        return around !== null;
    }

    function tileAt(place: int): Item {
        for (let i = 0; i < tiles.count; ++i) {
            const tile = tiles.itemAt(i) as ShelfTileView;
            if (tile?.place === place) {
                return tile;
            }
        }
        return null;
    }

    function see() {
        if (flick.height > 0) { // Not during its own layout.
            shelf.setSight(flick.contentY + sightTop, Math.min(flick.height, sightHeight));
        }
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Shelf")
    activeFocusOnTab: true
    onCountChanged: {
        if (count === 0) {
            wanted = -1; // Keys act on no other file until an arrow key has chosen one.
        }
    }
    onWidthChanged: shelf.lay(width)
    onKeyboardChanged: {
        wasElsewhere = wasElsewhere || (keyboard !== null && !activeFocus && !isAround(keyboard));
    }
    onSightTopChanged: see()
    onSightHeightChanged: see()
    onActiveFocusChanged: {
        if (activeFocus && (current >= 0 || wasElsewhere) && !tileAt(current)?.activeFocus) {
            go(current);
        }
    }

    Keys.onPressed: event => {
        if (event.key === Qt.Key_Left) {
            step(current - 1);
        } else if (event.key === Qt.Key_Right) {
            step(current + 1);
        } else if (event.key === Qt.Key_Up) {
            step(shelf.above(current));
        } else if (event.key === Qt.Key_Down) {
            step(shelf.below(current));
        } else if (event.key === Qt.Key_Home) {
            go(0);
        } else if (event.key === Qt.Key_End) {
            go(shelf.count - 1);
        } else if (event.key === Qt.Key_Space && !event.isAutoRepeat) {
            shelf.toggle(current);
        } else if (event.key === Qt.Key_A && event.modifiers === Qt.ControlModifier) {
            shelf.selectAllOrNone();
        } else if (event.key === Qt.Key_Delete && !event.isAutoRepeat) {
            if (shelf.hasSelection) {
                shelf.removeSelected();
            } else if (current >= 0) {
                shelf.remove(shelf.fileAt(current));
            }
            goOn();
        } else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                   && !event.isAutoRepeat) {
            if (current >= 0) {
                shelfFiles.open(shelf.fileAt(current));
            }
        } else if (event.key === Qt.Key_Menu) {
            if (tileAt(current)) {
                grid.menuRequested(tileAt(current), Qt.point(50, 90), true);
            }
        } else {
            return;
        }
        event.accepted = true;
    }

    FadingEdge {
        anchors.fill: parent
        length: Math.min(26, Math.max(0, flick.contentHeight - flick.contentY - flick.height))

        Flickable {
            id: flick
            objectName: "stacks"
            anchors.fill: parent
            contentHeight: grid.shelf.height
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            onContentYChanged: grid.see()
            onHeightChanged: grid.see()

            Repeater {
                model: grid.shelf.trays

                Box {
                    id: tray

                    required property int stack
                    required property rect rect

                    objectName: "tray" + stack
                    x: rect.x
                    y: rect.y
                    width: rect.width
                    height: rect.height
                    radius: Theme.radiusTray
                    color: Theme.tray
                    lineColor: Theme.trayLine
                    lineWidth: 1

                    MultiFileDrag {
                        anchors.fill: parent
                        shelfFiles: grid.shelfFiles
                        provider: () => grid.shelf.filesToDrag()
                        onTapped: {
                            Typing.wantKeyboard(grid);
                            grid.shelf.toggleStack(tray.stack);
                        }
                    }
                }
            }

            Repeater {
                id: tiles
                model: grid.shelf.tiles

                ShelfTileView {
                    id: tile
                    shelfFiles: grid.shelfFiles
                    shown: grid.shown
                    onTapped: {
                        // Or the next key, for example Delete, would go to the program below.
                        Typing.wantKeyboard(grid);
                        grid.wanted = place;
                        forceActiveFocus();
                        grid.shelf.toggle(place);
                    }
                    onMenuRequested: place => grid.menuRequested(tile, place, false)
                    onPlaceChanged: {
                        if (activeFocus) {
                            grid.wanted = place;
                        }
                    }
                    onActiveFocusChanged: {
                        if (activeFocus) {
                            ring.control = tile;
                        }
                    }
                }
            }

            // As narrow as the gap between tiles.
            Box {
                id: ring

                property Item control: null

                visible: control?.activeFocus ?? false
                x: (control?.x ?? 0) - 2
                y: (control?.y ?? 0) - 2
                width: 105
                height: 112
                radius: Theme.radiusPopover + 2
                lineColor: Theme.withAlpha(Theme.accent, 0.60)
                lineWidth: 2
            }
        }
    }
}
