import QtQuick
import Ravelo

/// A button with a text. The main one of a group is white.
Pressable {
    id: button

    property alias text: label.text
    property bool primary: false

    name: text
    implicitWidth: Math.max(64, label.implicitWidth + 24)
    implicitHeight: 28
    radius: 14
    rest: primary ? Theme.primary : Theme.surface3
    hover: primary ? Theme.primaryHovered : Theme.surface4
    press: primary ? Theme.primaryPressed : Theme.pressedButton

    Label {
        id: label
        anchors.horizontalCenter: parent.horizontalCenter
        y: (parent.height - 16) / 2
        style: Theme.button
        color: button.primary ? Theme.onWhite : Theme.text1
    }
}
