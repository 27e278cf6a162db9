import QtQuick
import Ravelo

/// What can be done from every tab.
Item {
    id: bar

    required property PanelHost host
    /// The question whether the reminders are to be shown or hidden is asked.
    property bool reminderLit: false

    /// The question belongs under this corner.
    signal reminderToggleRequested(point corner)

    implicitHeight: 32

    Row {
        objectName: "actions"
        anchors.right: parent.right
        spacing: 8

        RoundButton {
            objectName: "copyLastShelf"
            visible: !bar.host.shelfEmpty
            symbol: "doc.on.doc"
            glyphSize: 17
            tip: "Copy the last file added to the Shelf"
            onClicked: bar.host.copyLastShelf()
        }

        RoundButton {
            id: reminders
            objectName: "reminderToggle"
            symbol: "checklist"
            tint: bar.host.store.reminderOpen ? Theme.roundGlyph : Theme.roundGlyphOff
            rest: bar.reminderLit ? Theme.hoveredRound : Theme.round
            tip: bar.host.store.reminderOpen ? "Shown under the notch — click to hide"
                                             : "Hidden — click to show under the notch"
            onClicked: bar.reminderToggleRequested(mapToItem(null, width, height + 6))
        }
    }
}
