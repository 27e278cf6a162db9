pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Clips
import Ravelo.Theme

/// The clips of the history, or those that were found.
ListView {
    id: list

    required property Clips clips
    required property bool shown
    /// What lies above the list, and scrolls with it.
    required property real head

    signal tapped(row: int, modifiers: int)
    signal pointed(row: int, hovered: bool)
    signal menuRequested(row: ClipRow, place: point)

    // ListView's own positioning ignores the margin.
    function showTop() {
        positionViewAtBeginning();
        contentY = originY - topMargin;
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Clipboard history")
    clip: true
    topMargin: head
    onTopMarginChanged: showTop()
    Component.onCompleted: showTop()
    onContentHeightChanged: {
        if (head > 0 && !moving) {
            returnToBounds();
        }
    }
    cacheBuffer: 80
    boundsBehavior: Flickable.StopAtBounds
    // New clips must not scroll the list away from its beginning.
    highlightFollowsCurrentItem: false
    model: clips.list

    delegate: ClipRow {
        id: row
        clips: list.clips
        shown: list.shown
        width: list.width
        selected: index === list.currentIndex
        onTileHoveredChanged: list.pointed(index, tileHovered)
        onTapped: modifiers => list.tapped(index, modifiers)
        onMenuRequested: place => list.menuRequested(row, place)
        onDragged: list.clips.drag(index, row)
        onDeleted: list.clips.remove(index)
    }

    add: Transition {
        id: entering
        enabled: list.shown
        ParallelAnimation {
            NumberAnimation {
                property: "opacity"
                from: 0
                to: 1
                duration: Theme.entering
                easing.type: Easing.OutCubic
            }
            NumberAnimation {
                property: "y"
                from: entering.ViewTransition.destination.y - Theme.move(40)
                duration: Theme.entering
                easing.type: Easing.OutCubic
            }
        }
    }
    remove: Transition {
        enabled: list.shown
        NumberAnimation {
            property: "scale"
            to: 1 - Theme.move(10) / 100
            duration: Theme.leaving
            easing.type: Easing.InCubic
        }
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.leaving
            easing.type: Easing.InCubic
        }
    }
    displaced: Transition {
        id: making
        enabled: list.shown
        NumberAnimation {
            property: "y"
            duration: Theme.move(Theme.entering)
            easing.type: Easing.OutCubic
        }
        // A move interrupts the row's fade-in; it must not stay faint.
        NumberAnimation {
            property: "opacity"
            to: 1
            duration: Theme.entering
        }
    }
    move: making
}
