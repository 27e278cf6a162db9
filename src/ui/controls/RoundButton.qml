import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A round button with a symbol and a tooltip, white or in its own colour.
Pressable {
    id: button

    property alias symbol: glyph.symbol
    property alias glyphSize: glyph.size
    property color tint: Theme.roundGlyph
    property alias tip: tooltip.text

    name: tip
    implicitWidth: 32
    implicitHeight: 32
    radius: 16
    rest: Theme.round
    hover: Theme.hoveredRound
    press: Theme.pressedRound

    Glyph {
        id: glyph
        objectName: "symbol"
        anchors.verticalCenter: parent.verticalCenter
        x: (parent.width - width) / 2 // An anchor would round this.
        size: 18
        color: button.tint
    }

    Tooltip {
        id: tooltip
        target: button
        hovered: button.hovered && !button.pressed
        text: ""
    }
}
