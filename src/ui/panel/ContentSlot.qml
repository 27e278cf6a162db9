import QtQuick
import Ravelo.Panel
import Ravelo.Theme

/// Creates the content of the panel, keeps it hidden and shows it.
FocusScope {
    id: slot

    required property PanelState panelState
    required property bool open
    /// Shown while the panel is open. By its address: the closed panel is drawn before this is
    /// compiled.
    required property url content
    required property var contentProperties

    function follow() {
        if (panelState.hasContent) {
            loader.setSource(content, contentProperties);
        } else {
            loader.source = "";
        }
    }

    // Independent of the window, which is small until the panel opens.
    width: panelState.contentSize.width
    height: panelState.contentSize.height
    visible: open
    // A popover of the previous content has taken the focus.
    onOpenChanged: {
        if (open) {
            focus = true;
        }
    }

    Component.onCompleted: follow()

    Connections {
        target: slot.panelState
        function onHasContentChanged() {
            slot.follow();
        }
    }

    Loader {
        id: loader
        anchors.fill: parent
        focus: true
    }

    // A picture that is shown first must not fade to what it shows.
    NumberAnimation {
        target: slot
        property: "opacity"
        running: slot.open && !slot.panelState.pictured
        // Start at the second frame of the 60 ms fade: the first would be invisible.
        from: 16 / Theme.opening
        to: 1
        duration: Theme.opening - 16
    }
}
