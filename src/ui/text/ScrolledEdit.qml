import QtQuick
import Ravelo.Text

/// Scrolls text that is longer than its field and keeps the caret visible.
Flickable {
    id: view

    required property EditArea edit
    /// Top margin of the text before it is scrolled.
    property real head: 0

    function showCaret() {
        const caret = edit.cursorRectangle;
        const highest = caret.y + caret.height - height;
        const lowest = caret.y > 0 ? caret.y : -head; // On the first line, show all above it.
        const wanted = Math.max(highest, Math.min(contentY, lowest));
        contentY = Math.max(-head, Math.min(wanted, contentHeight - height));
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    topMargin: head
    onHeadChanged: later.restart()
    contentWidth: width
    contentHeight: Math.max(edit.implicitHeight, height - head)

    // Also after the height has changed.
    Timer {
        id: later
        interval: 0
        onTriggered: view.showCaret()
    }

    Binding {
        target: view.edit
        property: "height"
        value: view.contentHeight
    }

    Connections {
        target: view.edit
        function onCursorRectangleChanged() {
            view.showCaret();
        }
    }
}
