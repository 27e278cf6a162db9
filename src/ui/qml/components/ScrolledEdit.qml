import QtQuick
import Ravelo

/// Where text longer than its field scrolls; the caret stays in sight.
Flickable {
    id: view

    required property EditArea edit

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    contentHeight: Math.max(edit.implicitHeight, height)

    Binding {
        target: view.edit
        property: "height"
        value: view.contentHeight
    }

    Connections {
        target: view.edit
        function onCursorRectangleChanged() {
            const caret = view.edit.cursorRectangle;
            const highest = caret.y + caret.height - view.height;
            const wanted = Math.max(highest, Math.min(view.contentY, caret.y));
            view.contentY = Math.max(0, Math.min(wanted, view.contentHeight - view.height));
        }
    }
}
