import QtQuick
import Ravelo

/// The quick note. Every change is kept at once.
FocusScope {
    id: tab

    required property PanelHost host
    /// Height of what is above the tabs and scrolls away with the note; 0 if it stays.
    required property real head
    readonly property Flickable flick: scrolled
    readonly property real headInSight: head - Math.min(head, Math.max(0, scrolled.contentY + head))

    Label {
        objectName: "caption"
        y: tab.headInSight + 8
        text: "Quick note"
        color: Theme.caption
        style: Theme.body
    }

    Box {
        objectName: "editor"
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
            y: 11 - tab.headInSight // Stays where it is while the box grows over what is scrolled away.
            width: parent.width - 22
            height: tab.height - 32 - 22
            head: tab.head
            edit: editor

            EditArea {
                id: editor
                objectName: "noteInput"
                focus: true
                name: "Quick note"
                width: parent.width
                host: tab.host
                exactText: tab.host.store.note
                Component.onCompleted: cursorPosition = length
                onExactTextChanged: {
                    if (exactText !== tab.host.store.note) {
                        tab.host.store.note = exactText;
                        tab.host.store.save();
                    }
                }
            }
        }
    }
}
