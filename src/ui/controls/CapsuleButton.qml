import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A button with text. The main one of a group is white.
Pressable {
    id: button

    property alias text: label.text
    property string symbol
    property bool primary: false
    /// Only the text shows until the pointer is over it.
    property bool ghost: false
    property bool large: false
    property alias style: label.style
    property color textColor: primary ? Theme.onWhite : ghost && !hovered ? Theme.text2 : Theme.text1
    property real sidePad: large ? 16 : 12
    /// Space before the text, for a symbol.
    property real lead: symbol === "" ? 0 : 19

    name: text
    implicitWidth: Math.max(64, lead + label.implicitWidth + 2 * sidePad)
    implicitHeight: large ? 32 : 28
    radius: height / 2
    rest: primary ? Theme.primary : ghost ? Theme.none : Theme.surface3
    hover: primary ? Theme.primaryHovered : ghost ? Theme.surface3 : Theme.surface4
    press: primary ? Theme.primaryPressed : Theme.pressedButton

    Glyph {
        visible: button.symbol !== ""
        x: button.sidePad - 2
        y: (button.height - size) / 2
        size: 15
        symbol: button.symbol
        color: label.color
    }

    Label {
        id: label
        x: button.lead + (button.width - button.lead - width) / 2
        y: (button.height - style.line) / 2
        style: button.large ? Theme.strong : Theme.button
        color: button.textColor
    }
}
