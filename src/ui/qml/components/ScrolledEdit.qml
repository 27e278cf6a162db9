import QtQuick
import Ravelo

/// Where text longer than its field scrolls; the caret stays in sight.
Flickable {
    id: view

    required property EditArea edit
    /// How far the text begins below the top until it is scrolled.
    property real head: 0

    /// Brings the caret into sight.
    function follow() {
        const caret = edit.cursorRectangle;
        const highest = caret.y + caret.height - height;
        const lowest = caret.y > 0 ? caret.y : -head; // The first line with all above it.
        contentY = Math.max(-head, Math.min(Math.max(highest, Math.min(contentY, lowest)),
                                            contentHeight - height));
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    topMargin: head
    onHeadChanged: {
        contentY = -head;
        follow();
    }
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
            view.follow();
        }
    }
}
