import QtQuick
import Ravelo

/// What can be done from every tab.
Item {
    id: bar

    required property PanelHost host
    /// In a narrow panel the reminders have a row of their own.
    readonly property bool hasTwoRows: width < 820 - 2 * Theme.insetSide
    /// How far the reminders in their own row have been scrolled up behind the first one.
    property real lifted: 0
    readonly property Item reminders: strip

    readonly property real leftRoom: actions.x - 16 - (hasTwoRows ? 0 : 100)

    readonly property bool timing: host.store.timerRunning

    implicitHeight: hasTwoRows ? 64 : 32
    // The keyboard must not stay behind in what is not to be seen any more, nor go to a button that
    // the next Return would press.
    onTimingChanged: {
        if (timing && starting.keyed || !timing && (running.keyed || running.activeFocus)) {
            (timing ? running : starting).forceActiveFocus();
        }
    }

    FocusControl {
        id: starting
        objectName: "focusControl"
        visible: !bar.timing
        host: bar.host
        room: bar.leftRoom
    }

    RunningTimer {
        id: running
        objectName: "runningTimer"
        visible: bar.timing
        host: bar.host
        room: bar.leftRoom
    }

    Item {
        readonly property real begin: bar.hasTwoRows ? 0 : 16
            + (running.visible ? running.width : starting.width)

        x: begin
        y: bar.hasTwoRows ? 34 : 0
        width: (bar.hasTwoRows ? bar.width : actions.x - 16) - begin
        height: bar.hasTwoRows ? Math.max(0, 34 - bar.lifted) : 32
        clip: bar.hasTwoRows && bar.lifted > 0

        ReminderStrip {
            id: strip
            objectName: "reminderStrip"
            y: bar.hasTwoRows ? 6 - bar.lifted : 4
            width: parent.width
            host: bar.host
            fromLeft: bar.hasTwoRows
        }
    }

    Row {
        id: actions
        objectName: "actions"
        anchors.right: parent.right
        spacing: 8

        RoundButton {
            objectName: "copyLastShelf"
            visible: !bar.host.shelfEmpty
            symbol: "doc.on.doc"
            glyphSize: 17
            tip: "Copy the last file added to the Shelf"
            onClicked: bar.host.copyLastShelf()
        }

        RoundButton {
            id: reminderButton
            objectName: "reminderToggle"
            symbol: "checklist"
            tint: bar.host.store.reminderOpen ? Theme.roundGlyph : Theme.roundGlyphOff
            rest: reminderQuestion.opened ? Theme.hoveredRound : Theme.round
            tip: bar.host.store.reminderOpen ? "Shown under the notch — click to hide"
                                             : "Hidden — click to show under the notch"
            onClicked: {
                // As it was when it was asked, while the answer fades.
                reminderQuestion.text = bar.host.store.reminderOpen
                    ? "Hide reminders under the notch?" : "Show reminders under the notch?";
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
            tip: "Turno da noite — apaga a tela em ~5s e trabalha no pendente"
            onClicked: bar.host.startNightShift()
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
            tip: "Shut down the Mac"
            onClicked: confirmPower.openLeftUnder(power, 14)
        }

        RoundButton {
            objectName: "gear"
            symbol: "gearshape"
            glyphSize: 16
            tip: "Settings"
            onClicked: bar.host.controller.openSettings()
        }
    }

    Question {
        id: reminderQuestion
        objectName: "reminderQuestion"
        host: bar.host
        onAccepted: bar.host.store.reminderOpen = !bar.host.store.reminderOpen
    }

    Question {
        id: confirmPower
        objectName: "powerQuestion"
        host: bar.host
        text: "Shut down the Mac?"
        onAccepted: bar.host.shutDown()
    }
}
