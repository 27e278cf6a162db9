import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Panel
import Ravelo.Shelf
import Ravelo.Snippets
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Usage

/// The open panel.
FocusScope {
    id: content

    required property NotchController controller
    required property PanelState panelState
    required property Tabs tabs
    required property Pausing pausing
    required property Focus focusing
    required property Usage usage
    required property Snippets snippets
    required property ShelfFiles shelfFiles
    required property Notices notices
    required property ToastMessage toast
    required property PanelActions actions

    readonly property bool shown: controller.isOpen
    /// Files are being dragged over the panel.
    readonly property bool dropTargeted: controller.filesOver
    /// Of the current tab.
    readonly property TabPage page: places.count > 0
        ? (places.itemAt(tabs.current) as TabPlace).item as TabPage : null

    /// Too low for everything: what is between the top bar and the tabs scrolls away.
    readonly property bool compact: height < 480
    readonly property real gap: compact ? 8 : 12
    readonly property real rowEnd: topBar.y + 32
    readonly property real headHeight: topBar.height - 32
        + (usage.shown ? usageBlock.height + gap : 0)
    /// How far it is scrolled away.
    readonly property real lifted: compact ? Math.min(headHeight, scrolled) : 0
    readonly property Flickable flick: page?.flick ?? null
    readonly property real scrolled: flick ? flick.contentY - flick.originY + flick.topMargin : 0

    /// Positive scrolls down.
    function scrollBy(distance: real) {
        page.stopScrolling();
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

    /// Space presses buttons.
    function isTyped(event: KeyEvent): bool {
        const held = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier;
        return !(event.modifiers & held) && event.text > " " && event.text !== "\x7f";
    }

    focus: true
    Keys.onEscapePressed: {
        if (!page?.clearSearch()) {
            controller.dismiss();
        }
    }
    Keys.onPressed: event => {
        const backwards = event.key === Qt.Key_Backtab;
        if ((event.key === Qt.Key_Tab || backwards) && event.modifiers & Qt.ControlModifier) {
            tabs.step(backwards ? -1 : 1);
        } else if (event.key === Qt.Key_F && event.modifiers === Qt.ControlModifier
                   && tabs.searchable >= 0) {
            tabs.choose(tabs.searchable);
            page.search();
        } else if (isTyped(event) && tabs.searchable >= 0) {
            tabs.choose(tabs.searchable);
            page.type(event.text);
        } else if (event.key === Qt.Key_F6) {
            notice.toggleFocus();
        } else if (!event.matches(StandardKey.Undo) || !toast.act()) {
            return;
        }
        event.accepted = true;
    }

    Connections {
        target: content.tabs
        function onChosen() {
            tabChange.restart();
        }
    }

    Connections {
        target: Typing
        function onKeyboardFreed(window) {
            if (window === content.Window.window) {
                body.forceActiveFocus();
            }
        }
    }

    // Scroll focused items into view.
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
        backdrop: content.panelState.backdrop
        darkness: content.panelState.darkness
        fullBlack: content.panelState.fullBlack
    }

    TopBar {
        id: topBar
        objectName: "topBar"
        x: Theme.insetSide
        y: content.compact ? 16 : Theme.insetTop
        z: 1
        width: parent.width - 2 * Theme.insetSide
        controller: content.controller
        pausing: content.pausing
        focusing: content.focusing
        actions: content.actions
        crowded: copyLast.visible
        lifted: content.lifted

        CopyLastButton {
            id: copyLast
            objectName: "copyLastShelf"
            shelfFiles: content.shelfFiles
        }
    }

    Item {
        y: content.rowEnd
        z: 1
        width: parent.width
        height: picker.y - y
        clip: content.lifted > 0

        Lazy {
            id: usageBlock
            objectName: "usage"
            x: Theme.insetSide
            y: topBar.height - 32 + content.gap - content.lifted
            width: parent.width - 2 * Theme.insetSide
            visible: needed
            needed: content.usage.shown
            page: "qrc:/Ravelo/Usage/ContextStatusLine.qml"
            properties: ({
                usage: content.usage,
                compact: Qt.binding(() => content.compact)
            })
            enabled: !content.dropTargeted // Not while dragging.
        }
    }

    TabPicker {
        id: picker
        objectName: "tabs"
        x: Theme.insetSide
        y: content.rowEnd + content.gap + content.headHeight - content.lifted
        z: 1
        width: parent.width - 2 * Theme.insetSide
        tabs: content.tabs.all
        current: content.tabs.current
        onChosen: index => content.tabs.choose(index)
    }

    NoticeLine {
        id: notice
        objectName: "notice"
        x: Theme.insetSide
        y: picker.y + picker.height + 8
        z: 1
        width: parent.width - 2 * Theme.insetSide
        notices: content.notices
        open: content.shown
    }

    FocusScope {
        id: body
        x: Theme.insetSide
        y: notice.y + notice.room - (content.compact ? content.headHeight - content.lifted : 0)
        width: parent.width - 2 * Theme.insetSide
        height: parent.height - y - (content.compact ? 12 : Theme.insetBottom)
        focus: true

        Repeater {
            id: places
            model: content.tabs.all

            TabPlace {
                required property Tab modelData
                required property int index

                anchors.fill: parent
                tab: modelData
                // qmllint disable unqualified
                current: index === content.tabs.current
                shown: content.shown
                dropTargeted: content.dropTargeted
                head: content.compact ? content.headHeight : 0
                stage: cover
                // qmllint enable unqualified
            }
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

    SheetPlace {
        anchors.fill: parent
        z: 2
        page: "qrc:/Ravelo/Snippets/SnippetSheet.qml"
        editor: content.snippets.editor
        needed: content.snippets.editor.editing
    }

    Item {
        id: cover
        anchors.fill: parent
        z: 2
    }

    Lazy {
        z: 2
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - height - 26
        needed: content.toast.text !== ""
        page: "qrc:/Ravelo/Controls/ToastCapsule.qml"
        properties: ({ message: content.toast })
    }
}
