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

        Flickable {
            id: view
            anchors.fill: parent
            anchors.margins: 11
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            contentWidth: width
            contentHeight: editor.height

            EditArea {
                id: editor
                objectName: "noteInput"
                focus: true
                name: "Quick note"
                width: view.width
                height: Math.max(implicitHeight, view.height)
                host: tab.host
                text: tab.host.store.note
                // By the user only: what the editor makes of a stored note is no change of it.
                onTextChanged: {
                    if (activeFocus && text !== tab.host.store.note) {
                        tab.host.store.note = text;
                        tab.host.store.save();
                    }
                }
                onCursorRectangleChanged: {
                    const lowest = cursorRectangle.y;
                    const highest = lowest + cursorRectangle.height - view.height;
                    const wanted = Math.max(highest, Math.min(view.contentY, lowest));
                    view.contentY = Math.max(0, Math.min(wanted, view.contentHeight - view.height));
                }
            }
        }
    }
}
