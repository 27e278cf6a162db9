import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// A switch. Its state is set by its owner only, also after a press.
Pressable {
    id: toggle

    required property bool on

    signal toggled(bool on)

    implicitWidth: 38
    implicitHeight: 22
    radius: 11
    rest: on ? Theme.fill : Theme.switchOff
    hover: on ? Theme.hoveredFill : Theme.hoveredSwitchOff
    press: on ? Theme.pressedFill : Theme.pressedSwitchOff
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: toggle.clicked()
    onClicked: toggled(!on)

    Knob {
        objectName: "knob"
        x: toggle.on ? 18 : 2
        y: 2
        color: toggle.on && toggle.pressed ? Theme.pressedKnob : Theme.knob

        Behavior on x {
            NumberAnimation {
                duration: Theme.move(Theme.hovering)
                easing.type: Easing.OutQuad
            }
        }
    }
}
