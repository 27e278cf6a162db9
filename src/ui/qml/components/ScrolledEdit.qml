import QtQuick
import Ravelo

/// Where text longer than its field scrolls; the caret stays in sight.
Flickable {
    id: view

    required property EditArea edit
    /// How far the text begins below the top until it is scrolled.
    property real head: 0

    function showCaret() {
        const caret = edit.cursorRectangle;
        const highest = caret.y + caret.height - height;
        const lowest = caret.y > 0 ? caret.y : -head; // The first line with all above it.
        const wanted = Math.max(highest, Math.min(contentY, lowest));
        contentY = Math.max(-head, Math.min(wanted, contentHeight - height));
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    topMargin: head
    onHeadChanged: later.restart()
    contentWidth: width
    contentHeight: Math.max(edit.implicitHeight, height - head)

    // Once the height has changed, too.
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
