import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The text cursor. Blinks while its field has the focus, for 10 s after each change.
Item {
    id: caret

    function rest() {
        blink.left = 20; // Even, so that it stays on.
        blink.on = true;
        // A restart would also start it where nothing has the focus.
        if (blink.running) {
            blink.restart();
        }
    }

    width: 1.5
    onXChanged: rest()
    onYChanged: rest()
    onVisibleChanged: rest()
    visible: parent !== null && (parent as Item).activeFocus

    Box {
        objectName: "caret"
        x: 1
        width: 1.5
        height: parent.height
        color: Theme.accent
        visible: blink.on
    }

    Timer {
        id: blink
        objectName: "blink"

        property bool on: true
        property int left: 0

        interval: 500
        repeat: true
        running: caret.visible && left > 0
        onTriggered: {
            on = !on;
            --left;
        }
    }
}
