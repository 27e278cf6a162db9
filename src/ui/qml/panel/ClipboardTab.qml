pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// Search, snippets and the clipboard history.
FocusScope {
    id: tab

    required property PanelHost host
    required property bool shown
    /// Height of what is above the tabs and scrolls away with the list, and the snippets with it;
    /// 0 if all of it stays.
    required property real head
    readonly property Flickable flick: list
    readonly property real scrolled: head > 0 ? list.contentY - list.originY + list.topMargin : 0
    /// How far the snippets have gone behind the search.
    readonly property real chipsLifted: Math.max(0, Math.min(36, scrolled - head))

    /// Takes the search away; false where there is none.
    function clearSearch(): bool {
        const had = field.edited.text !== "";
        field.edited.clear();
        return had;
    }

    /// The keyboard goes to the search, with all of it selected.
    function search() {
        field.edited.forceActiveFocus();
        field.edited.selectAll();
    }

    /// Where the clip with this number is.
    function rowOf(number: int): int {
        const tooLarge = host.clips.tooLargeRow;
        return tooLarge >= 0 && number >= tooLarge ? number + 1 : number;
    }

    function remove(row: int) {
        if (row === host.clips.tooLargeRow) {
            host.clips.dismissTooLarge();
        } else {
            host.deleting.deleteClip(host.clips.idAt(row));
        }
    }

    function copy(row: int) {
        if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            host.copyClip(host.clips.idAt(row));
        }
    }

    function copyAndClose(row: int) {
        if (row >= 0 && row < list.count && row !== host.clips.tooLargeRow) {
            copy(row);
            host.controller.dismiss();
        }
    }

    /// Keys that work on the list while the search has the keyboard.
    function handle(event: KeyEvent) {
        const page = Math.max(1, Math.floor(list.height / 40) - 1);
        const control = (event.modifiers & ~Qt.KeypadModifier) === Qt.ControlModifier;
        const searching = field.edited.activeFocus;
        const selected = host.clips.idAt(list.currentIndex);
        if (event.key === Qt.Key_Up) {
            select(list.currentIndex - 1);
        } else if (event.key === Qt.Key_Down) {
            select(list.currentIndex + 1);
        } else if (event.key === Qt.Key_PageUp) {
            select(list.currentIndex - page);
        } else if (event.key === Qt.Key_PageDown) {
            select(list.currentIndex + page);
        } else if (control && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            host.openLink(selected);
        } else if (searching && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            copyAndClose(list.currentIndex);
        } else if (control && event.key >= Qt.Key_1 && event.key <= Qt.Key_9) {
            copyAndClose(rowOf(event.key - Qt.Key_1));
        } else if (control && event.key === Qt.Key_P) {
            host.store.togglePin(selected);
        } else if (event.key === Qt.Key_Delete && searching && field.edited.text === ""
                   && !event.isAutoRepeat) {
            remove(list.currentIndex);
        } else {
            return;
        }
        event.accepted = true;
    }

    function select(row: int) {
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        const before = list.contentY;
        showCurrent();
        if (head > 0 && shown && list.contentY !== before) {
            revealing.to = list.contentY;
            list.contentY = before;
            revealing.restart();
        }
    }

    function showCurrent() {
        revealing.stop();
        if (list.currentIndex <= 0) {
            list.showTop();
        } else {
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        }
    }

    // What was copied while this was hidden has pushed the rows on.
    onShownChanged: {
        if (shown) {
            list.currentIndex = Math.min(rowOf(0), list.count - 1);
            revealing.stop();
            list.showTop();
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

    SearchField {
        id: field
        objectName: "search"
        y: tab.head - Math.min(tab.head, Math.max(0, tab.scrolled))
        z: 1 // The list is behind, as far up as it can get.
        width: parent.width
        host: tab.host
        edited.onTextChanged: tab.select(tab.rowOf(0))
        edited.Keys.forwardTo: [tab]
    }

    Question {
        id: linkQuestion
        objectName: "linkQuestion"
        host: tab.host
        onAccepted: tab.host.links.openAsked()
    }

    Connections {
        target: tab.host.links
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
            host: tab.host
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
        title: "No clipboard history yet"
        subtitle: "Copy anything with ⌘C and it shows up here."
        detail: tab.host.clips.search === "" ? "" : `Nothing has “${tab.host.clips.search}”`
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

            // ListView's own way to the beginning leaves the margin out.
            function showTop() {
                positionViewAtBeginning();
                contentY = originY - topMargin;
            }

            Accessible.role: Accessible.List
            Accessible.name: "Clipboard history"
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
            // What is copied meanwhile must not scroll the list away from its beginning.
            highlightFollowsCurrentItem: false
            model: tab.host.clips

            delegate: ClipRow {
                host: tab.host
                shown: tab.shown
                width: list.width
                selected: index === list.currentIndex
                onTapped: tab.copy(index)
                onDeleted: tab.remove(index)
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
                // A row that was still coming in is pushed on as it is; it must not stay faint.
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
