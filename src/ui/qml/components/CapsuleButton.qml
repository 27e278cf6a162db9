import QtQuick
import Ravelo

/// A button with a text. The main one of a group is white.
Surface {
    id: button

    property alias text: label.text
    property bool primary: false

    signal clicked

    implicitWidth: Math.max(64, label.implicitWidth + 24)
    implicitHeight: 28
    radius: 14
    hovered: area.containsMouse
    pressed: area.pressed
    rest: primary ? Theme.primary : Theme.surface3
    hover: primary ? Theme.primaryHovered : Theme.surface4
    press: primary ? Theme.primaryPressed : Theme.pressedButton

    Label {
        id: label
        anchors.horizontalCenter: parent.horizontalCenter
        y: 6
        style: Theme.button
        color: button.primary ? Theme.onWhite : Theme.text1
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.clicked()
    }
}
