import QtQuick
import Ravelo

/// A small round button at the end of a row.
Surface {
    id: button

    property alias symbol: glyph.symbol

    signal clicked

    implicitWidth: 24
    implicitHeight: 24
    radius: 12
    hovered: area.containsMouse
    pressed: area.pressed
    hover: Theme.hoveredMini
    press: Theme.pressedMini

    Glyph {
        id: glyph
        anchors.centerIn: parent
        size: 14
        color: button.hovered ? Theme.white(1) : Theme.icon
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.clicked()
    }
}
