import QtQuick
import Ravelo

/// The open panel.
FocusScope {
    id: content

    required property PanelHost host
    /// Files are being dragged over the panel.
    required property bool dropTargeted

    readonly property bool shown: host.controller.isOpen
    /// The titles are what is remembered.
    readonly property var tabs: [
        { title: "Clipboard", symbol: "doc.on.clipboard" },
        { title: "Notes", symbol: "note.text" },
        { title: "Shelf", symbol: "tray.full" }
    ]
    readonly property int shelfTab: 2
    /// Too low for all of it: what is between the top bar and the tabs scrolls away with what is
    /// below them.
    readonly property bool compact: height < 480
    readonly property real gap: compact ? 8 : 12
    readonly property real rowEnd: topBar.y + 32
    readonly property real headHeight: topBar.height - 32
        + (host.showsClaudeCode ? usage.height + gap : 0)
    /// How far it has been scrolled away.
    readonly property real lifted: compact ? Math.min(headHeight, scrolled) : 0
    readonly property Flickable flick: tab === 0 ? clipboard.flick : tab === 1 ? notes.flick
        : (shelf.item as ShelfTab)?.flick ?? null
    readonly property real scrolled: flick ? flick.contentY - flick.originY + flick.topMargin : 0

    /// Down for a positive distance.
    function scrollBy(distance: real) {
        const begin = flick.originY - flick.topMargin;
        const end = flick.originY + flick.contentHeight - flick.height;
        flick.contentY = Math.max(begin, Math.min(flick.contentY + distance, end));
    }

    function isIn(item: Item, outer: Item): bool {
        while (item && item !== outer) {
            item = item.parent;
        }
        return item !== null;
    }
    property int tab: Math.max(0, tabs.findIndex(one => one.title === host.settings.lastTab))

    function choose(index: int) {
        if (index !== tab) {
            tab = index;
            tabChange.restart();
            host.settings.lastTab = tabs[index].title;
        }
    }

    focus: true
    Keys.onEscapePressed: {
        if (!clipboard.visible || !clipboard.clearSearch()) {
            host.controller.dismiss();
        }
    }
    Keys.onPressed: event => {
        const backwards = event.key === Qt.Key_Backtab;
        if ((event.key === Qt.Key_Tab || backwards) && event.modifiers & Qt.ControlModifier) {
            choose((tab + (backwards ? tabs.length - 1 : 1)) % tabs.length);
        } else if (event.key === Qt.Key_F && event.modifiers === Qt.ControlModifier) {
            choose(0);
            clipboard.search();
        } else if (event.key === Qt.Key_F6) {
            notice.toggleFocus();
        } else if (!event.matches(StandardKey.Undo) || !host.toast.act()) {
            return;
        }
        event.accepted = true;
    }

    onDropTargetedChanged: {
        if (dropTargeted) {
            host.store.clearSelection();
            choose(shelfTab);
        }
    }

    // The request may be older than this content.
    Component.onCompleted: {
        if (host.shelfRequested) {
            choose(shelfTab);
        }
    }

    Connections {
        target: content.host.store
        function onShelfRequestTickChanged() {
            content.choose(content.shelfTab);
        }
    }

    Connections {
        target: content.host
        function onKeyboardFreed() {
            body.forceActiveFocus();
        }
    }

    // What the keyboard reaches comes back into view.
    readonly property Item focused: Window.activeFocusItem // qmllint disable unqualified
    onFocusedChanged: {
        if (lifted > 0 && isIn(focused, topBar.reminders)) {
            scrollBy(-scrolled);
        }
    }

    WheelHandler {
        enabled: content.compact && content.flick !== null
        onWheel: event => content.scrollBy(-event.angleDelta.y)
    }

    PanelBackground {
        objectName: "panel"
        anchors.fill: parent
        backdrop: content.host.backdrop
        darkness: content.host.settings.bgOpacity
        fullBlack: content.host.settings.fullBlack
    }

    TopBar {
        id: topBar
        objectName: "topBar"
        x: Theme.insetSide
        y: content.compact ? 16 : Theme.insetTop
        z: 1
        width: parent.width - 2 * Theme.insetSide
        host: content.host
        lifted: content.lifted
    }

    Item {
        y: content.rowEnd
        z: 1
        width: parent.width
        height: picker.y - y
        clip: content.lifted > 0

        ContextStatusLine {
            id: usage
            objectName: "usage"
            x: Theme.insetSide
            y: topBar.height - 32 + content.gap - content.lifted
            width: parent.width - 2 * Theme.insetSide
            visible: content.host.showsClaudeCode
            host: content.host
            compact: content.compact
            enabled: !content.dropTargeted // What is dragged over it wants no hint.
        }
    }

    TabPicker {
        id: picker
        objectName: "tabs"
        x: Theme.insetSide
        y: content.rowEnd + content.gap + content.headHeight - content.lifted
        z: 1
        width: parent.width - 2 * Theme.insetSide
        tabs: content.tabs
        current: content.tab
        onChosen: index => content.choose(index)
    }

    NoticeLine {
        id: notice
        objectName: "notice"
        x: Theme.insetSide
        y: picker.y + picker.height + 8
        z: 1
        width: parent.width - 2 * Theme.insetSide
        host: content.host
    }

    // The first two are there all the time: what is searched for stays while the note is looked at.
    FocusScope {
        id: body
        x: Theme.insetSide
        y: notice.y + notice.room - (content.compact ? content.headHeight - content.lifted : 0)
        width: parent.width - 2 * Theme.insetSide
        height: parent.height - y - (content.compact ? 12 : Theme.insetBottom)
        focus: true

        ClipboardTab {
            id: clipboard
            anchors.fill: parent
            visible: content.tab === 0
            focus: visible
            host: content.host
            shown: content.shown
            head: content.compact ? content.headHeight : 0
        }

        NotesTab {
            id: notes
            anchors.fill: parent
            visible: content.tab === 1
            focus: visible
            host: content.host
            head: content.compact ? content.headHeight : 0
        }

        Loader {
            id: shelf
            anchors.fill: parent
            active: content.tab === content.shelfTab
            visible: active
            focus: active
            // qmllint disable unqualified
            sourceComponent: ShelfTab {
                focus: true
                host: content.host
                shown: content.shown
                dropTargeted: content.dropTargeted
                head: content.compact ? content.headHeight : 0
            }
            // qmllint enable unqualified
        }

        ScrollMark {
            x: parent.width + 4
            visible: content.compact
            flick: content.flick
        }

        NumberAnimation on opacity {
            id: tabChange
            running: false
            from: 0
            to: 1
            duration: Theme.springing
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.spring
        }
    }

    SnippetSheet {
        anchors.fill: parent
        host: content.host
    }

    ToastCapsule {
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - height - 26
        host: content.host
    }
}
