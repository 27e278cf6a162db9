import QtQuick
import Ravelo.Controls

/// A surface that can be pressed with the pointer, Space or Return, or by an assistive program. A
/// press by the pointer does not move the keyboard focus.
Surface {
    id: pressable

    /// Name for assistive programs.
    property string name
    /// Show the focus ring.
    property alias ring: ring.enabled

    signal clicked

    activeFocusOnTab: true
    hovered: hover.hovered
    pressed: area.pressed
    // A disabled parent fades as a whole.
    opacity: enabled || !parent?.enabled ? 1 : 0.4

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onPressAction: pressable.clicked()

    Keys.onPressed: event => {
        const presses = event.key === Qt.Key_Space || event.key === Qt.Key_Return
            || event.key === Qt.Key_Enter;
        const held = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier;
        if (presses && !(event.modifiers & held)) {
            event.accepted = true;
            if (!event.isAutoRepeat) {
                pressable.clicked();
            }
        }
    }

    FocusRing {
        id: ring
        control: pressable
    }

    HoverHandler {
        id: hover
    }

    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: pressable.clicked()
    }
}
