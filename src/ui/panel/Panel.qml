import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Panel
import Ravelo.Shelf
import Ravelo.Snippets
import Ravelo.Theme
import Ravelo.Usage

/// Content of the panel's window: a handle, a bar, or the open panel, at the same edge.
Item {
    id: panel

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

    // Accepts files only, as copies. The controller gets them from the platform; reading them here
    // would block. Ignores drags from the panel itself.
    DropArea {
        id: drop
        objectName: "drop"

        function answer(event: DragEvent, accept: bool) {
            if (accept) {
                event.accept(Qt.CopyAction);
            } else {
                event.accepted = false;
            }
        }

        anchors.fill: parent
        keys: ["text/uri-list", "application/vnd.portal.filetransfer", "application/vnd.portal.files"]
        onEntered: drag => answer(drag, !drag.source && panel.controller.onDragEnter())
        onPositionChanged: drag => answer(drag, panel.controller.mayCarryFiles())
        onExited: panel.controller.onDragLeave()
        onDropped: drop => answer(drop, panel.controller.onDrop())
    }

    // In the middle of a window that is wider than the panel. Until it has grown, at its left.
    function centred(width: double): double {
        return Math.max(0, Math.floor((panel.width - width) / 2));
    }

    // Not the window's size: the window shrinks shortly after the panel closed.
    HandleView {
        objectName: "handle"
        x: panel.centred(width)
        width: panel.controller.collapsedSize.width
        height: panel.controller.collapsedSize.height
        visible: !slot.open && !panel.controller.showsBar
        backdrop: panel.panelState.backdrop
        paused: panel.pausing.paused
    }

    Lazy {
        id: bar
        x: panel.centred(width)
        width: panel.controller.collapsedSize.width
        height: panel.controller.collapsedSize.height
        visible: !slot.open && needed
        needed: panel.controller.showsBar
        page: Qt.resolvedUrl("BarView.qml")
        properties: ({
            controller: panel.controller,
            focusing: panel.focusing,
            pausing: panel.pausing
        })
    }

    Binding {
        target: panel.focusing.face
        property: "shown"
        value: (bar.visible || slot.open) && panel.Window.visibility !== Window.Hidden
    }

    Binding {
        target: Theme
        property: "reducedMotion"
        value: panel.panelState.reducedMotion
    }

    Binding {
        target: Theme
        property: "translucent"
        value: panel.panelState.backdrop !== Backdrop.Opaque
    }

    ContentSlot {
        id: slot
        objectName: "content"
        x: panel.centred(width)
        focus: true
        panelState: panel.panelState
        open: panel.controller.isOpen
        content: Qt.resolvedUrl("ContentView.qml")
        contentProperties: ({
            controller: panel.controller,
            panelState: panel.panelState,
            tabs: panel.tabs,
            pausing: panel.pausing,
            focusing: panel.focusing,
            usage: panel.usage,
            snippets: panel.snippets,
            shelfFiles: panel.shelfFiles,
            notices: panel.notices,
            toast: panel.toast,
            actions: panel.actions
        })
    }
}
