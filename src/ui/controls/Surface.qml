import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// A box whose fill reacts to the pointer.
Box {
    id: surface

    property bool hovered: false
    property bool pressed: false
    property color rest: Theme.surface3
    property color hover: Theme.surface4
    property color press: Theme.pressedButton

    color: pressed ? press : hovered ? hover : rest

    Behavior on color {
        ColorAnimation { duration: surface.pressed ? Theme.pressing : Theme.hovering }
    }
}
