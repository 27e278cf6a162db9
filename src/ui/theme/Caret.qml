import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The text cursor. Blinks while its field has the focus.
Item {
    id: caret

    function rest() {
        blink.on = true;
        if (visible) { // A hidden one moves while it is laid out.
            blink.restart();
        }
    }

    width: 1.5
    onXChanged: rest()
    onYChanged: rest()
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
        property bool on: true
        interval: 500
        repeat: true
        running: caret.visible
        onTriggered: on = !on
    }
}
