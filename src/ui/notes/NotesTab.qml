import QtQuick
import Ravelo.Controls
import Ravelo.Notes
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Vault

/// The quick note, saved at every change.
TabPage {
    id: tab

    readonly property Notes notes: feature as Notes
    readonly property real headInSight: head - Math.min(head, Math.max(0, scrolled.contentY + head))

    flick: scrolled

    LockedView {
        objectName: "lockedNotes"
        visible: Vault.locked
        focus: visible
        y: tab.headInSight
        width: parent.width
        height: parent.height - y
    }

    Label {
        objectName: "caption"
        visible: !Vault.locked
        y: tab.headInSight + 8
        text: qsTr("Quick note")
        color: Theme.caption
        style: Theme.body
    }

    Box {
        objectName: "editor"
        visible: !Vault.locked
        y: tab.headInSight + 32
        width: parent.width
        height: parent.height - y
        radius: Theme.radiusEditor
        color: Theme.surface1
        lineColor: editor.activeFocus ? Theme.withAlpha(Theme.accent, 0.45) : Theme.line
        lineWidth: 1

        ScrolledEdit {
            id: scrolled
            x: 11
            y: 11 - tab.headInSight // Stays in place while the box grows over the scrolled-away head.
            width: parent.width - 22
            height: tab.height - 32 - 22
            head: tab.head
            edit: editor

            EditArea {
                id: editor
                objectName: "noteInput"
                focus: !Vault.locked
                name: qsTr("Quick note")
                width: parent.width
                exactText: tab.notes.text
                Component.onCompleted: cursorPosition = length
                onExactTextChanged: tab.notes.text = exactText
            }
        }
    }
}
