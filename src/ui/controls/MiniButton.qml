import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A small round button at the end of a row.
Pressable {
    id: button

    property alias symbol: glyph.symbol
    property color tint: Theme.icon
    /// Shown some time after the pointer came to rest here.
    property string tip: name

    implicitWidth: 24
    implicitHeight: 24
    radius: 12
    hover: Theme.hoveredMini
    press: Theme.pressedMini

    Glyph {
        id: glyph
        anchors.centerIn: parent
        size: 14
        color: button.hovered ? Theme.white(1) : button.tint
    }

    Tooltip {
        target: button
        hovered: button.hovered && !button.pressed
        text: button.tip
    }
}
