import QtQuick
import Ravelo

/// The text cursor. Blinks while its field has the keyboard.
Item {
    id: caret

    property real above: 0

    width: 1.5
    visible: parent !== null && (parent as Item).activeFocus

    Box {
        y: caret.above
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
        onRunningChanged: on = true
        onTriggered: on = !on
    }
}
