import QtQuick
import Ravelo.Controls

/// A surface that does something when it is pressed: by the pointer, with Space or Return, by an
/// assistive program. The pointer leaves the keyboard where it is.
Surface {
    id: pressable

    /// What it is called where it cannot be seen.
    property string name
    /// Whether it shows that it has the keyboard.
    property alias ring: ring.enabled

    signal clicked

    activeFocusOnTab: true
    hovered: hover.hovered
    pressed: area.pressed
    // What fades as a whole is disabled too.
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
