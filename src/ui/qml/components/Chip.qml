import QtQuick
import Ravelo

/// A capsule with a symbol and a title.
Surface {
    id: chip

    property string symbol
    property string title

    signal clicked

    implicitWidth: label.x + label.implicitWidth + 12
    implicitHeight: 28
    radius: 14
    hovered: area.containsMouse
    pressed: area.pressed
    rest: Theme.surface2

    Glyph {
        id: glyph
        x: 10
        y: 6.5
        size: 15
        symbol: chip.symbol
        color: Theme.text3
    }

    Label {
        id: label
        objectName: "chipTitle"
        x: 31
        y: 6
        style: Theme.chip
        text: chip.title
        color: chip.hovered ? Theme.text1 : Theme.text2
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: chip.clicked()
    }
}
