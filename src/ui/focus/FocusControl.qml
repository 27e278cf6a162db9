pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// Starts a focus timer: label, minutes, start button.
Box {
    id: control

    required property Focus focusing
    /// Maximum width.
    required property real room

    readonly property var presetTexts: focusing.presets
    readonly property var minuteChoices: [15, 25, 30, 45, 60, 90, 120]
    readonly property real others: presets.width + minutes.width + 44

    readonly property bool keyed: note.activeFocus || presets.activeFocus || minutes.activeFocus
        || play.activeFocus

    function start() {
        focusing.startFocus(note.text);
        note.clear();
    }

    implicitWidth: note.room + others
    implicitHeight: 32
    radius: 16
    color: Theme.surface2
    lineColor: note.activeFocus ? Theme.withAlpha(Theme.accent, 0.55) : Theme.line
    lineWidth: 1

    EditLine {
        id: note
        objectName: "focusNote"
        x: 14
        width: room - 8
        readonly property real room: Math.max(60, Math.min(150, control.room - control.others))
        height: parent.height
        placeholder: qsTr("Focus…")
        Keys.onReturnPressed: control.start()
        Keys.onEnterPressed: control.start()
        Keys.onEscapePressed: event => {
            event.accepted = text !== "";
            clear();
        }
    }

    MenuButton {
        id: presets
        objectName: "presetMenu"
        anchors.right: minutes.left
        text: note.text === "" ? qsTr("Focus") : note.text
        maxTextWidth: control.room < 330 ? 40 : 96
        lit: presetMenu.opened
        onClicked: presetMenu.openUnder(this as Item, 4)

        Menu {
            id: presetMenu
            objectName: "presetChoices"
            name: qsTr("Focus presets")
            minWidth: 168
            entries: control.presetTexts.map(preset => ({
                text: preset, chosen: () => note.text = preset
            })).concat([
                { divider: true },
                { text: qsTr("Edit presets…"), chosen: () => presetEditor.openUnder(presets, 4) }
            ])
        }
    }

    MenuButton {
        id: minutes
        objectName: "minutesMenu"
        anchors.right: play.left
        text: control.focusing.minutesLabel
        lit: minutesMenu.opened
        onClicked: minutesMenu.openUnder(this as Item, 16)

        Menu {
            id: minutesMenu
            objectName: "minuteChoices"
            name: qsTr("Minutes")
            minWidth: 128
            entries: control.minuteChoices.map(choice => ({
                text: qsTr("%1 min").arg(choice),
                checked: choice === control.focusing.minutes,
                chosen: () => control.focusing.minutes = choice
            })).concat([
                { divider: true },
                { text: qsTr("Custom…"), chosen: () => custom.openUnder(minutes, 16) }
            ])
        }
    }

    RoundButton {
        id: play
        objectName: "startFocus"
        x: parent.width - width - 2
        y: 2
        width: 28
        height: 28
        radius: 14
        rest: Theme.surface4
        hover: Theme.hoveredMini
        press: Theme.pressedMini
        symbol: "play.fill"
        tint: Theme.white(1)
        tip: qsTr("Start countdown")
        onClicked: control.start()
    }

    CustomMinutes {
        id: custom
        focusing: control.focusing
    }

    PresetEditor {
        id: presetEditor
        focusing: control.focusing
    }
}
