pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Lists
import Ravelo.Snippets
import Ravelo.Theme

/// Search, snippets and the clipboard history.
TabPage {
    id: tab

    readonly property Clips clips: feature as Clips
    readonly property real scrolled: head > 0 ? list.contentY - list.originY + list.topMargin : 0
    /// How far the snippets have moved behind the search.
    readonly property real chipsLifted: Math.max(0, Math.min(36, scrolled - head))

    flick: list

    function clearSearch(): bool {
        const had = field.edited.text !== "";
        field.edited.clear();
        return had;
    }

    function search() {
        field.edited.forceActiveFocus();
        field.edited.selectAll();
    }

    /// Row of the clip with this digit.
    function rowOf(number: int): int {
        const tooLarge = clips.list.tooLargeRow;
        return tooLarge >= 0 && number >= tooLarge ? number + 1 : number;
    }

    function copy(row: int) {
        if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            clips.copy(row);
        }
    }

    function copyAndClose(row: int) {
        if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            clips.copyAndClose(row);
        }
    }

    /// Keys for the list while the search has the focus.
    function handle(event: KeyEvent) {
        const page = Math.max(1, Math.floor(list.height / Theme.rowHeight) - 1);
        const control = (event.modifiers & ~Qt.KeypadModifier) === Qt.ControlModifier;
        const searching = field.edited.activeFocus;
        const emptySearch = searching && field.edited.text === "";
        if (event.key === Qt.Key_Up) {
            select(list.currentIndex - 1);
        } else if (event.key === Qt.Key_Down) {
            select(list.currentIndex + 1);
        } else if (event.key === Qt.Key_PageUp) {
            select(list.currentIndex - page);
        } else if (event.key === Qt.Key_PageDown) {
            select(list.currentIndex + page);
        } else if (control && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            clips.openLink(list.currentIndex);
        } else if (searching && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            copyAndClose(list.currentIndex);
        } else if (control && event.key >= Qt.Key_1 && event.key <= Qt.Key_9) {
            copyAndClose(rowOf(event.key - Qt.Key_1));
        } else if (event.key === Qt.Key_Space && clips.list.isSecret(list.currentIndex)
                   && (emptySearch || event.modifiers === Qt.ShiftModifier)) {
            current()?.reveal();
        } else if (event.key === Qt.Key_Menu || event.key === Qt.Key_F10
                   && event.modifiers === Qt.ShiftModifier) {
            openMenu(list.currentIndex, Qt.point(46, Theme.rowHeight), true);
        } else if (control && event.key === Qt.Key_P) {
            clips.togglePin(list.currentIndex);
        } else if (event.key === Qt.Key_Delete && emptySearch
                   && !event.isAutoRepeat) {
            clips.remove(list.currentIndex);
        } else {
            return;
        }
        event.accepted = true;
    }

    function current(): ClipRow {
        return list.currentItem as ClipRow;
    }

    /// Of a secret; `place` is in its row.
    function openMenu(row: int, place: point, byKey: bool) {
        if (clips.list.isSecret(row)) {
            menu.row = row;
            menu.openAt(list.itemAtIndex(row).mapToItem(menu.parent, place.x, place.y), false, byKey);
        }
    }

    function select(row: int) {
        current()?.hide();
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        const before = list.contentY;
        showCurrent();
        if (head > 0 && shown && list.contentY !== before) {
            revealing.to = list.contentY;
            list.contentY = before;
            revealing.restart();
        }
    }

    function stopScrolling() {
        revealing.stop();
    }

    function showCurrent() {
        stopScrolling();
        if (list.currentIndex <= 0) {
            list.showTop();
        } else {
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        }
    }

    // Clips copied while this is hidden move the rows down.
    function begin() {
        list.currentIndex = Math.min(rowOf(0), list.count - 1);
        stopScrolling();
        list.showTop();
    }

    onShownChanged: {
        if (shown) {
            begin();
        }
    }

    Connections {
        target: list.model
        enabled: !tab.shown
        function onRowsInserted() {
            tab.begin();
        }
    }

    NumberAnimation {
        id: revealing
        target: list
        property: "contentY"
        duration: Theme.revealing
        easing.type: Easing.OutCubic
    }

    Keys.onPressed: event => handle(event)
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Space && !event.isAutoRepeat) {
            current()?.hide();
        }
    }

    Menu {
        id: menu

        property int row: -1

        objectName: "secretMenu"
        name: qsTr("Secret")
        checkable: false
        minWidth: 248
        entries: [
            { text: qsTr("Keep as any text"), chosen: () => tab.clips.keepSecret(menu.row) },
            { text: qsTr("Forget now"), chosen: () => tab.clips.forgetSecret(menu.row) }
        ]
    }

    SearchField {
        id: field
        objectName: "search"
        y: tab.head - Math.min(tab.head, Math.max(0, tab.scrolled))
        z: 1 // The list scrolls up behind the search.
        width: parent.width
        placeholder: qsTr("Search clipboard…")
        clearName: qsTr("Clear history")
        clearQuestion: qsTr("Clear clipboard history?")
        onSearched: text => {
            tab.clips.search(text);
            tab.select(tab.rowOf(0));
        }
        onCleared: tab.clips.clear()
        edited.Keys.forwardTo: [tab]
    }

    Question {
        id: linkQuestion
        objectName: "linkQuestion"
        onAccepted: tab.clips.links.openAsked()
    }

    Connections {
        target: tab.clips.links
        function onAsked(question: string) {
            linkQuestion.text = question;
            linkQuestion.openUnder(list.currentItem ?? field, 46);
        }
    }

    Item {
        y: field.y + 36
        z: 1
        width: parent.width
        height: 36 - tab.chipsLifted
        clip: tab.chipsLifted > 0

        SnippetStrip {
            id: chips
            y: 4 - tab.chipsLifted
            width: parent.width
            snippets: tab.clips.snippets
            onReached: {
                if (tab.chipsLifted > 0) {
                    list.showTop();
                }
            }
        }
    }

    EmptyState {
        y: tab.head + 76
        width: parent.width
        height: parent.height - y
        visible: list.count === 0
        symbol: "doc.on.clipboard"
        title: qsTr("No clipboard history yet")
        subtitle: qsTr("Copy anything with ⌘C and it shows up here.")
        detail: tab.clips.list.search === "" ? "" : qsTr("Nothing has “%1”").arg(tab.clips.list.search)
    }

    FadingEnds {
        y: tab.head > 0 ? 40 : 76
        width: parent.width
        height: parent.height - y
        length: Math.min(26, Math.max(0, list.contentHeight - list.contentY - list.height))
        topLength: tab.head > 0 ? Math.min(18, Math.max(0, tab.scrolled - list.topMargin)) : 0

        ListView {
            id: list
            objectName: "list"

            // ListView's own positioning ignores the margin.
            function showTop() {
                positionViewAtBeginning();
                contentY = originY - topMargin;
            }

            Accessible.role: Accessible.List
            Accessible.name: qsTr("Clipboard history")
            anchors.fill: parent
            clip: true
            topMargin: tab.head > 0 ? tab.head + 36 : 0
            onTopMarginChanged: showTop()
            Component.onCompleted: showTop()
            onContentHeightChanged: {
                if (tab.head > 0 && !moving) {
                    returnToBounds();
                }
            }
            cacheBuffer: 80
            boundsBehavior: Flickable.StopAtBounds
            // New clips must not scroll the list away from its beginning.
            highlightFollowsCurrentItem: false
            model: tab.clips.list

            delegate: ClipRow {
                clips: tab.clips
                shown: tab.shown
                width: list.width
                selected: index === list.currentIndex
                onTapped: tab.copy(index)
                onDeleted: tab.clips.remove(index)
                onMenuRequested: place => tab.openMenu(index, place, false)
            }

            add: Transition {
                id: entering
                enabled: tab.shown
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
                enabled: tab.shown
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
                enabled: tab.shown
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
    }
}
