import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// Sets a number by drag, press on the track, wheel, keys or assistive program. Shows `given`,
/// which its owner sets.
Item {
    id: slider

    required property real given
    required property real minimumValue
    required property real maximumValue
    /// Distance between the possible numbers, counted from the lowest; 0 if all are possible.
    property real stepSize: 0
    /// Name for assistive programs.
    property string name

    // Assistive programs read and set this property by its name.
    property real value
    readonly property real range: maximumValue - minimumValue
    readonly property real keyStep: stepSize > 0 ? stepSize : range / 50
    readonly property real place: Math.max(0, Math.min(1, (given - minimumValue) / range))

    signal chosen(real value)

    function choose(wanted: real) {
        const steps = (wanted - minimumValue) / (stepSize || range);
        const allowed = minimumValue + (stepSize > 0 ? Math.round(steps) * stepSize : steps * range);
        chosen(Math.max(minimumValue, Math.min(maximumValue, allowed)));
    }

    /// From between two possible numbers, the first step goes to the next one.
    function move(steps: int) {
        const at = (given - minimumValue) / keyStep;
        const slack = 1e-6;
        const from = steps > 0 ? Math.floor(at + slack) : Math.ceil(at - slack);
        choose(minimumValue + ((stepSize > 0 ? from : at) + steps) * keyStep);
    }

    implicitWidth: 200
    implicitHeight: 20
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onIncreaseAction: move(1)
    Accessible.onDecreaseAction: move(-1)

    Binding {
        target: slider
        property: "value"
        value: slider.given
        restoreMode: Binding.RestoreNone
    }

    onValueChanged: {
        if (value !== given) {
            choose(value);
            value = given;
        }
    }

    Keys.onPressed: event => {
        const steps = {
            [Qt.Key_Right]: 1, [Qt.Key_Up]: 1, [Qt.Key_PageUp]: 10,
            [Qt.Key_Left]: -1, [Qt.Key_Down]: -1, [Qt.Key_PageDown]: -10
        }[event.key];
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)) {
            return;
        } else if (steps) {
            move(steps);
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            choose(event.key === Qt.Key_Home ? minimumValue : maximumValue);
        } else {
            return;
        }
        event.accepted = true;
    }

    Box {
        objectName: "track"
        y: 8
        width: parent.width
        height: 4
        radius: 2
        color: Theme.sliderTrack
    }

    Box {
        objectName: "fill"
        y: 8
        width: knob.x + 9
        height: 4
        radius: 2
        color: Theme.fill
    }

    Knob {
        id: knob
        objectName: "knob"
        x: slider.place * (slider.width - width)
        y: 1

        FocusRing {
            control: slider
            radius: knob.radius + 4
        }
    }

    MouseArea {
        property real grip ///< Offset of the press from the knob's left edge.
        property bool taken: false ///< Pressed since the pointer came.
        property int turned ///< Wheel angle that does not yet make a notch, in eighths of a degree.

        function follow(x: real) {
            slider.choose(slider.minimumValue
                          + (x - grip) / (slider.width - knob.width) * slider.range);
        }

        anchors.fill: parent
        preventStealing: true
        hoverEnabled: true
        onExited: taken = false
        onPressed: mouse => {
            taken = true;
            const held = mouse.x >= knob.x && mouse.x <= knob.x + knob.width;
            grip = held ? mouse.x - knob.x : knob.width / 2;
            if (!held) {
                follow(mouse.x);
            }
        }
        onPositionChanged: mouse => {
            if (pressed) {
                follow(mouse.x);
            }
        }
        onWheel: wheel => {
            wheel.accepted = taken || slider.activeFocus;
            if (!wheel.accepted) {
                return; // A page that is scrolled must not change it in passing.
            }
            turned += wheel.angleDelta.y || -wheel.angleDelta.x;
            const notches = Math.trunc(turned / 120);
            turned -= notches * 120;
            if (notches !== 0) {
                slider.move(notches);
            }
        }
    }
}
