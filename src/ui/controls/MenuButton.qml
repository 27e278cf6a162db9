import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// Opens a menu; sits between the dividers of a capsule.
Pressable {
    id: button

    property alias text: label.text
    property real maxTextWidth: 96
    /// The menu is open.
    property bool lit: false

    name: text
    implicitWidth: 13 + label.width + 28
    implicitHeight: 32
    radius: Theme.radiusTile
    rest: Theme.none
    hover: Theme.none
    press: Theme.none

    Box {
        y: 6
        width: 1
        height: 20
        color: Theme.surface3
    }

    Label {
        id: label
        objectName: "choice"
        x: 13
        y: 8
        width: Math.min(implicitWidth, button.maxTextWidth)
        style: Theme.menuLabel
        color: button.hovered || button.lit ? Theme.text1 : Theme.text2
    }

    Glyph {
        x: label.x + label.width + 4
        y: 8
        symbol: "chevron.down"
        color: Theme.text4
    }
}
