import QtQuick
import Ravelo

/// The quick note. Every change is kept at once.
FocusScope {
    id: tab

    required property PanelHost host

    Label {
        objectName: "caption"
        y: 8
        text: "Quick note"
        color: Theme.caption
        style: Theme.body
    }

    Box {
        objectName: "editor"
        y: 32
        width: parent.width
        height: parent.height - y
        radius: Theme.radiusEditor
        color: Theme.surface1
        lineColor: editor.activeFocus ? Theme.withAlpha(Theme.accent, 0.45) : Theme.line
        lineWidth: 1

        ScrolledEdit {
            anchors.fill: parent
            anchors.margins: 11
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
