import QtQuick
import Ravelo

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
    hovered: area.containsMouse
    pressed: area.pressed
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onPressAction: pressable.clicked()

    Keys.onPressed: event => {
        const presses = event.key === Qt.Key_Space || event.key === Qt.Key_Return
            || event.key === Qt.Key_Enter;
        if (presses && event.modifiers === Qt.NoModifier) {
            event.accepted = true;
            pressable.clicked();
        }
    }

    FocusRing {
        id: ring
        control: pressable
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: pressable.clicked()
    }
}
