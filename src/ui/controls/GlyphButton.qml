import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A quiet button in a field, with a symbol and a tooltip.
Pressable {
    id: button

    property alias symbol: glyph.symbol
    /// What it opens is open.
    property bool lit: false

    implicitWidth: 28
    implicitHeight: 28
    radius: Theme.radiusSmall
    rest: lit ? Theme.surface3 : Theme.none
    hover: Theme.surface3
    press: Theme.surface4

    Glyph {
        id: glyph
        anchors.centerIn: parent
        color: button.lit || button.hovered ? Theme.text1 : Theme.iconQuiet
    }

    Tooltip {
        target: button
        hovered: button.hovered && !button.lit
        text: button.name
    }
}
