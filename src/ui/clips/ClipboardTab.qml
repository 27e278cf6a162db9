pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Lists
import Ravelo.Preview
import Ravelo.Snippets
import Ravelo.Theme
import Ravelo.Vault

/// Search, snippets and the clipboard history.
TabPage {
    id: tab

    readonly property Clips clips: feature as Clips
    readonly property real scrolled: head > 0 ? list.contentY - list.originY + list.topMargin : 0
    /// How far the snippets have moved behind the search.
    readonly property real chipsLifted: Math.max(0, Math.min(36, scrolled - head))

    /// The lock instead of the list, unless clips were copied since.
    readonly property bool showsLock: Vault.locked && (list.count === 0 || Vault.asked)
    /// What is typed while a passphrase is awaited must not be shown as a search.
    readonly property bool canSearch: !showsLock && !Vault.asksPassphrase
    /// Height of the snippets, which are hidden while locked.
    readonly property real chipsRoom: Vault.locked ? 0 : 36

    flick: list

    SheetPlace {
        parent: tab.stage
        anchors.fill: parent
        page: Qt.resolvedUrl("ClipSheet.qml")
        editor: tab.clips.editor
        needed: tab.clips.editor.editing
    }

    function clearSearch(): bool {
        if (preview.opened) {
            const hadFocus = bubble.focused;
            preview.close();
            if (hadFocus) {
                field.edited.forceActiveFocus();
            }
            return true;
        }
        if (clips.selected > 0) {
            clips.clearSelection();
            return true;
        }
        const had = !field.isEmpty;
        field.clear();
        return had;
    }

    function type(text: string) {
        if (canSearch) {
            field.type(text);
        } else {
            Vault.ask();
            locked.type(text);
        }
    }

    function search() {
        if (canSearch) {
            field.edited.forceActiveFocus();
            field.edited.selectAll();
        }
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

    /// All chosen clips, or that row's.
    function copyAndClose(row: int) {
        if (clips.selected > 1) {
            clips.copySelected();
            clips.close();
        } else if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            clips.copyAndClose(row);
        }
    }

    /// All chosen clips, or that row's. For the keys that do it, see ClipPasting.
    function finish(row: int, modifiers: int) {
        if (!clips.pasting.pastes(modifiers)) {
            copyAndClose(row);
        } else if (clips.selected > 1) {
            clips.pasteSelectedAndClose();
        } else if (row >= 0 && row < list.count) {
            list.currentIndex = row;
            clips.pasteAndClose(row);
        }
    }

    /// All chosen clips, or that row's.
    function remove(row: int) {
        clips.selected > 1 ? clips.removeSelected() : clips.remove(row);
    }

    function tap(row: int, modifiers: int) {
        if (modifiers & Qt.ShiftModifier) {
            extend(row);
        } else if (modifiers & Qt.ControlModifier) {
            list.currentIndex = row;
            clips.toggleSelected(row);
        } else {
            copy(row);
        }
    }

    function extend(row: int) {
        const to = Math.max(0, Math.min(row, list.count - 1));
        clips.selectTo(to, list.currentIndex);
        select(to);
    }

    function current(): ClipRow {
        return list.currentItem as ClipRow;
    }

    function select(row: int) {
        current()?.hide();
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        Qt.callLater(() => preview.follow());
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
            // Out of the fading end.
            const hidden = list.currentItem.y + list.currentItem.height + ends.length - list.contentY - list.height;
            if (hidden > 0) {
                list.contentY = Math.min(list.contentY + hidden, list.originY + list.contentHeight - list.height);
            }
        }
    }

    // Clips copied while this is hidden move the rows down.
    function begin() {
        list.forceLayout(); // Else an index that will move down with its row counts as set.
        list.currentIndex = Math.min(rowOf(0), list.count - 1);
        stopScrolling();
        list.showTop();
    }

    /// For new rows: the list may not know of them yet, and would make them of what was there before.
    function beginLater() {
        Qt.callLater(() => begin()); // qmllint disable
    }

    onShownChanged: {
        preview.close();
        if (shown) {
            begin();
        }
    }
    Component.onCompleted: begin() // It may be shown from the start, without a list until now.

    Connections {
        target: list.model
        enabled: !tab.shown
        function onRowsInserted() {
            tab.beginLater();
        }
    }

    Connections {
        target: tab.clips
        function onSearched() {
            tab.select(tab.rowOf(0));
        }
        function onRestored(row: int) {
            tab.select(row);
        }
    }

    NumberAnimation {
        id: revealing
        target: list
        property: "contentY"
        duration: Theme.revealing
        easing.type: Easing.OutCubic
    }

    Keys.onPressed: event => keys.handle(event)
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Space && !event.isAutoRepeat) {
            current()?.hide();
        }
    }

    SearchField {
        id: field
        objectName: "search"
        y: tab.head - Math.min(tab.head, Math.max(0, tab.scrolled))
        z: 1 // The list scrolls up behind the search.
        width: parent.width
        enabled: tab.canSearch
        opacity: enabled ? 1 : 0.4
        placeholder: qsTr("Search clipboard…")
        clearName: qsTr("Clear history")
        clearQuestion: qsTr("Clear clipboard history?")
        tally: tab.clips.list.tally
        isFilter: word => tab.clips.isFilter(word)
        filters: [
            { text: qsTr("Text"), filter: "type:text" },
            { text: qsTr("Links"), filter: "type:link" },
            { text: qsTr("Images"), filter: "type:image" },
            { text: qsTr("Files"), filter: "type:files" },
            { text: qsTr("Colors"), filter: "type:color" },
            { divider: true },
            { text: qsTr("Today"), filter: "after:today" },
            { text: qsTr("Older than a week"), filter: "before:7d" }
        ]
        keyHandler: tab
        onSearched: text => tab.clips.search(text)
        onCleared: tab.clips.clear()
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

    Question {
        id: pasteQuestion
        objectName: "pasteQuestion"
        detail: qsTr("Each line may run as a command.")
        onAccepted: tab.clips.pasting.runAsked()
    }

    Connections {
        target: tab.clips.pasting
        function onAsked(question: string) {
            pasteQuestion.text = question;
            pasteQuestion.openUnder(list.currentItem ?? field, 46);
        }
    }

    Item {
        y: field.y + 36
        z: 1
        width: parent.width
        height: 36 - tab.chipsLifted
        visible: !Vault.locked
        clip: tab.chipsLifted > 0

        SnippetStrip {
            id: chips
            y: 4 - tab.chipsLifted
            width: parent.width
            snippets: tab.clips.snippets
            opacity: 1 - selectionBar.opacity
            visible: opacity > 0
            onReached: {
                if (tab.chipsLifted > 0) {
                    list.showTop();
                }
            }
        }
    }

    Lazy {
        id: selectionBar
        objectName: "selectionBar"
        y: field.y + 40
        z: 1
        width: parent.width
        needed: tab.clips.selected > 1
        page: Qt.resolvedUrl("SelectionBar.qml")
        properties: ({ clips: tab.clips })
        visible: opacity > 0
        opacity: tab.clips.selected > 1 ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.floatingIn }
        }
    }

    LockedView {
        id: locked
        objectName: "locked"
        visible: tab.showsLock
        focus: tab.showsLock
        shown: tab.shown
        y: tab.head + 40
        width: parent.width
        height: parent.height - y
    }

    EmptyState {
        y: tab.head + 76
        width: parent.width
        height: parent.height - y
        visible: list.count === 0 && !Vault.locked
        symbol: "doc.on.clipboard"
        title: qsTr("No clipboard history yet")
        subtitle: qsTr("Copy anything with ⌘C and it shows up here.")
        detail: tab.clips.list.nothingFound
    }

    FadingEnds {
        id: ends
        visible: !tab.showsLock
        y: tab.head > 0 ? 40 : 40 + tab.chipsRoom
        width: parent.width
        height: parent.height - y
        length: Math.min(26, Math.max(0, list.contentHeight - list.contentY - list.height))
        topLength: tab.head > 0 ? Math.min(18, Math.max(0, tab.scrolled - list.topMargin)) : 0

        ClipList {
            id: list
            objectName: "list"
            anchors.fill: parent
            clips: tab.clips
            shown: tab.shown
            head: tab.head > 0 ? tab.head + tab.chipsRoom : 0
            onPointed: (row, hovered) => preview.point(row, hovered)
            onTapped: (row, modifiers) => tab.tap(row, modifiers)
            onMenuRequested: (row, place) => {
                if (row.order === 0 && !row.tooLarge) {
                    tab.clips.clearSelection(); // The menu is about the row that was pressed.
                }
                rowMenu.openAtRow(row, row.mapToItem(rowMenu.parent, place));
            }
        }
    }

    PreviewControl {
        id: preview
        clips: tab.clips
        list: list
        bubble: bubble
    }

    PreviewBubble {
        id: bubble
        z: 2
        preview: tab.clips.preview
        room: tab.width
        highest: field.y + field.height + 8
        lowest: tab.height + Theme.insetBottom - 18
    }

    ClipKeys {
        id: keys
        clips: tab.clips
        list: list
        search: field
        preview: preview
        bubble: bubble
        rowMenu: rowMenu
        unfocused: tab.Window.activeFocusItem === tab
        onMoved: row => tab.select(row)
        onExtended: row => tab.extend(row)
        onCopied: row => tab.copyAndClose(row)
        onFinished: (row, modifiers) => tab.finish(row, modifiers)
        onDigitPressed: (digit, modifiers) => tab.finish(tab.rowOf(digit - 1), modifiers)
        onRemoved: row => tab.remove(row)
    }

    RowMenu {
        id: rowMenu
        objectName: "rowMenu"
        clips: tab.clips
        list: list
        preview: preview
        onCopied: row => tab.copyAndClose(row)
    }
}
