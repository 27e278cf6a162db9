import QtQuick
import Ravelo.Text

/// Where text longer than its field scrolls; the caret stays in sight.
Flickable {
    id: view

    required property EditArea edit
    /// How far the text begins below the top until it is scrolled.
    property real head: 0

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    topMargin: head
    onHeadChanged: contentY = -head
    contentWidth: width
    contentHeight: Math.max(edit.implicitHeight, height - head)

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
            const lowest = caret.y > 0 ? caret.y : -view.head; // The first line with all above it.
            const wanted = Math.max(highest, Math.min(view.contentY, lowest));
            view.contentY = Math.max(-view.head, Math.min(wanted, view.contentHeight - view.height));
        }
    }
}
