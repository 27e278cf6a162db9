import QtQuick
import Ravelo.Controls
import Ravelo.Notes
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Vault

/// The quick note, a second one, both saved at every change, and a sketch pad.
TabPage {
    id: tab

    readonly property Notes notes: feature as Notes
    readonly property real headInSight: head - Math.min(head, Math.max(0, scrolled.contentY + head))
    readonly property bool sketching: notes.view === Notes.SketchPad && !Vault.locked
    readonly property string title: notes.view === Notes.SketchPad ? qsTr("Sketch")
        : notes.view === Notes.SecondNote ? qsTr("Second note") : qsTr("Quick note")

    /// Or back to the quick note.
    function toggle(view: int) {
        const focused = editor.activeFocus || pad.activeFocus;
        notes.view = notes.view === view ? Notes.QuickNote : view;
        editor.cursorPosition = editor.length;
        if (focused) {
            (sketching ? pad : editor).forceActiveFocus();
        }
    }

    flick: scrolled

    LockedView {
        objectName: "lockedNotes"
        visible: Vault.locked
        focus: Vault.locked
        shown: tab.shown
        y: tab.headInSight
        width: parent.width
        height: parent.height - y
    }

    Label {
        objectName: "caption"
        visible: !Vault.locked
        y: tab.headInSight + 8
        text: tab.title
        color: Theme.caption
        style: Theme.body
    }

    Loader {
        id: pad
        active: tab.sketching
        visible: active
        y: tab.headInSight
        width: parent.width
        height: parent.height - y
        sourceComponent: SketchPad {
            focus: true
            sketch: tab.notes.sketch // qmllint disable unqualified
            toolsEnd: views.width + 12 // qmllint disable unqualified
        }
    }

    Row {
        id: views
        visible: !Vault.locked
        x: parent.width - width
        y: tab.headInSight + 2
        spacing: 2

        GlyphButton {
            objectName: "secondNote"
            name: qsTr("Second note")
            symbol: "note"
            lit: tab.notes.view === Notes.SecondNote
            Accessible.checkable: true
            Accessible.checked: lit
            onClicked: tab.toggle(Notes.SecondNote)
        }

        GlyphButton {
            objectName: "sketchPad"
            name: qsTr("Sketch pad")
            symbol: "scribble"
            lit: tab.notes.view === Notes.SketchPad
            Accessible.checkable: true
            Accessible.checked: lit
            onClicked: tab.toggle(Notes.SketchPad)
        }
    }

    Box {
        objectName: "editor"
        visible: !Vault.locked && !tab.sketching
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
                name: tab.title
                width: parent.width
                exactText: tab.notes.text
                Component.onCompleted: cursorPosition = length
                onExactTextChanged: tab.notes.text = exactText
            }
        }
    }
}
