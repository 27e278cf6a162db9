import QtQuick
import Ravelo.Panel
import Ravelo.Theme

/// Where the content of the open panel is made, kept hidden and shown.
FocusScope {
    id: slot

    required property PanelState panelState
    required property bool open
    /// What is shown while the panel is open.
    required property Component content

    // Its size does not depend on the window's, which is small until the panel opens.
    width: panelState.contentSize.width
    height: panelState.contentSize.height
    visible: open
    // What floated over the last content has taken it.
    onOpenChanged: {
        if (open) {
            focus = true;
        }
    }

    Loader {
        anchors.fill: parent
        active: slot.panelState.hasContent
        focus: true
        sourceComponent: slot.content
    }

    NumberAnimation {
        target: slot
        property: "opacity"
        running: slot.open
        // The fade of 60 ms joined at its second frame: nothing would be seen of the first.
        from: 16 / Theme.opening
        to: 1
        duration: Theme.opening - 16
    }
}
