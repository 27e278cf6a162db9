import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Panel
import Ravelo.Theme

/// The bar above the tabs.
Item {
    id: bar

    required property NotchController controller
    required property Pausing pausing
    required property Focus focusing
    /// Another feature has a button here.
    property bool crowded: false
    required property PanelActions actions
    /// Buttons of other features, before our own.
    default property alias buttons: others.data
    /// In a narrow panel the reminders have their own row.
    readonly property bool hasTwoRows: width < 820 - 2 * Theme.insetSide
    /// How far the reminders' row is scrolled up behind the first row.
    property real lifted: 0
    readonly property Item reminders: strip

    readonly property real leftRoom: row.x - 16 - (hasTwoRows ? 0 : 100)

    readonly property bool timing: focusing.timerRunning

    implicitHeight: hasTwoRows ? 64 : 32
    // Keeps the focus out of hidden items and off a button that a repeated Return would press.
    onTimingChanged: {
        if (timing && starting.keyed || !timing && (running.keyed || running.activeFocus)) {
            (timing ? running : starting).forceActiveFocus();
        }
    }

    FocusControl {
        id: starting
        objectName: "focusControl"
        visible: !bar.timing
        focusing: bar.focusing
        room: bar.leftRoom
    }

    RunningTimer {
        id: running
        objectName: "runningTimer"
        visible: bar.timing
        focusing: bar.focusing
        room: bar.leftRoom
    }

    Item {
        readonly property real begin: bar.hasTwoRows ? 0 : 16
            + (running.visible ? running.width : starting.width)

        x: begin
        y: bar.hasTwoRows ? 34 : 0
        width: (bar.hasTwoRows ? bar.width : row.x - 16) - begin
        height: bar.hasTwoRows ? Math.max(0, 34 - bar.lifted) : 32
        clip: bar.hasTwoRows && bar.lifted > 0

        ReminderStrip {
            id: strip
            objectName: "reminderStrip"
            y: bar.hasTwoRows ? 6 - bar.lifted : 4
            width: parent.width
            focusing: bar.focusing
            fromLeft: bar.hasTwoRows
        }
    }

    Row {
        id: row
        objectName: "actions"
        anchors.right: parent.right
        spacing: 8

        Row {
            id: others
        }

        PauseButton {
            objectName: "pause"
            pausing: bar.pausing
            narrow: bar.width < 640 - 2 * Theme.insetSide
            visible: !narrow || !bar.crowded || bar.pausing.paused
        }

        RoundButton {
            id: reminderButton
            objectName: "reminderToggle"
            symbol: "checklist"
            tint: bar.focusing.reminderOpen ? Theme.roundGlyph : Theme.roundGlyphOff
            rest: reminderQuestion.opened ? Theme.hoveredRound : Theme.round
            tip: bar.focusing.reminderOpen ? qsTr("Shown under the notch — click to hide")
                                             : qsTr("Hidden — click to show under the notch")
            onClicked: {
                // Set once: the answer must not change the question while it fades out.
                reminderQuestion.text = bar.focusing.reminderOpen
                    ? qsTr("Hide reminders under the notch?") : qsTr("Show reminders under the notch?");
                reminderQuestion.openLeftUnder(reminderButton, 26);
            }
        }

        RoundButton {
            objectName: "nightShift"
            symbol: "moon.stars.fill"
            glyphSize: 17
            tint: Theme.indigo
            rest: Theme.nightShift
            hover: Theme.hoveredNightShift
            press: Theme.pressedNightShift
            tip: qsTr("Turno da noite — apaga a tela em ~5s e trabalha no pendente")
            onClicked: bar.actions.startNightShift()
        }

        RoundButton {
            id: power
            objectName: "power"
            symbol: "power"
            glyphSize: 16
            tint: Theme.red
            rest: confirmPower.opened ? Theme.hoveredPower : Theme.power
            hover: Theme.hoveredPower
            press: Theme.pressedPower
            tip: qsTr("Shut down the Mac")
            onClicked: confirmPower.openLeftUnder(power, 14)
        }

        RoundButton {
            objectName: "gear"
            symbol: "gearshape"
            glyphSize: 16
            tip: qsTr("Settings")
            onClicked: bar.controller.openSettings()
        }
    }

    Question {
        id: reminderQuestion
        objectName: "reminderQuestion"
        onAccepted: bar.focusing.reminderOpen = !bar.focusing.reminderOpen
    }

    Question {
        id: confirmPower
        objectName: "powerQuestion"
        yesIsWhite: true // As designed; Return still means no.
        text: qsTr("Shut down the Mac?")
        onAccepted: bar.actions.shutDown()
    }
}
