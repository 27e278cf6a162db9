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
        y: Theme.insetTop
        width: parent.width - 2 * Theme.insetSide
        host: content.host
    }

    ContextStatusLine {
        objectName: "usage"
        x: Theme.insetSide
        y: Theme.usageTop + topBar.height - 32
        width: parent.width - 2 * Theme.insetSide
        host: content.host
        compact: false
        enabled: !content.dropTargeted // What is dragged over it wants no hint.
    }

    TabPicker {
        objectName: "tabs"
        x: Theme.insetSide
        y: Theme.tabsTop + topBar.height - 32
        width: parent.width - 2 * Theme.insetSide
        tabs: content.tabs
        current: content.tab
        onChosen: index => content.choose(index)
    }

    NoticeLine {
        id: notice
        objectName: "notice"
        x: Theme.insetSide
        y: Theme.bodyTop + topBar.height - 32
        width: parent.width - 2 * Theme.insetSide
        host: content.host
    }

    // The first two are there all the time: what is searched for stays while the note is looked at.
    FocusScope {
        id: body
        x: Theme.insetSide
        y: notice.y + notice.room
        width: parent.width - 2 * Theme.insetSide
        height: parent.height - y - Theme.insetBottom
        focus: true

        ClipboardTab {
            id: clipboard
            anchors.fill: parent
            visible: content.tab === 0
            focus: visible
            host: content.host
            shown: content.shown
        }

        NotesTab {
            anchors.fill: parent
            visible: content.tab === 1
            focus: visible
            host: content.host
        }

        Loader {
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
            }
            // qmllint enable unqualified
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
