import QtQuick
import Ravelo

/// A button with a text. The main one of a group is white.
Pressable {
    id: button

    property alias text: label.text
    property bool primary: false
    property bool large: false
    property real sidePad: large ? 16 : 12
    /// Room before the text, for a symbol.
    property real lead: 0

    name: text
    implicitWidth: Math.max(64, lead + label.implicitWidth + 2 * sidePad)
    implicitHeight: large ? 32 : 28
    radius: height / 2
    rest: primary ? Theme.primary : Theme.surface3
    hover: primary ? Theme.primaryHovered : Theme.surface4
    press: primary ? Theme.primaryPressed : Theme.pressedButton

    Label {
        id: label
        x: button.lead + (button.width - button.lead - width) / 2
        y: (button.height - 16) / 2
        style: button.large ? Theme.strong : Theme.button
        color: button.primary ? Theme.onWhite : Theme.text1
    }
}
