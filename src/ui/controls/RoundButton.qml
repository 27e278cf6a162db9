import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A round button with a symbol that its tooltip explains. White, or in a colour of its own.
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
        x: (parent.width - width) / 2 // Not rounded, as an anchor would.
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
