import QtQuick
import Ravelo.Focus
import Ravelo.Paint
import Ravelo.Theme

/// The closed panel while a timer runs or reminders are shown: a bar around the notch.
NotchFill {
    id: bar

    required property Focus focusing
    /// Width of the notch; 0 if there is none.
    property real notch: 0
    /// The timer has just ended: the whole bar is highlighted.
    property bool ended: false
    /// Capture is paused.
    property bool paused: false

    readonly property bool timing: focusing.timerRunning || ended
    readonly property bool reminding: focusing.reminderVisible
    readonly property var reminders: focusing.reminders
    readonly property string remaining: ended ? "00:00" : focusing.face.remaining
    readonly property color ink: ended ? Theme.onWhite : Theme.text1
    readonly property color paleInk: ended ? Theme.onWhite : Theme.text3
    readonly property color reminderInk: ended ? Theme.onWhite : Theme.text2

    readonly property real pad: 20
    readonly property real gap: 8
    /// Usable width on either side, up to the notch or the other side.
    readonly property real side: notch > 0 ? (width - notch) / 2 - pad - 14 : (width - gap) / 2 - pad
    readonly property real iconRoom: 15 + gap
    readonly property real signRoom: paused ? 16 + gap : 0

    flare: 8
    bottomRadius: notch > 0 ? 14 : 12
    color: ended ? Theme.toast : Theme.bar

    component Icon: Glyph {
        y: Theme.middle(parent, height, Screen.devicePixelRatio)
        symbol: "checklist"
        size: 15
        color: bar.paleInk // qmllint disable unqualified
    }

    component PauseSign: Item {
        visible: bar.paused // qmllint disable unqualified
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 14

        Glyph {
            size: 14
            symbol: "pause"
            color: bar.ended ? Theme.onWhite : Theme.text4 // qmllint disable unqualified
        }
    }

    component Time: Label {
        anchors.verticalCenter: parent.verticalCenter
        style: Theme.strong
        tabular: true
        text: bar.remaining // qmllint disable unqualified
        color: bar.ink // qmllint disable unqualified
    }

    // The timer, or else the first reminders; those are centred if there is no notch.
    Row {
        id: left
        objectName: "left"
        anchors.verticalCenter: parent.verticalCenter
        x: bar.timing || bar.notch > 0 ? bar.pad : (bar.width - width) / 2
        spacing: bar.gap

        Item {
            objectName: "ring"
            visible: bar.timing
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14

            Ring {
                anchors.fill: parent
                anchors.margins: 0.25
                lineWidth: 2
                fraction: bar.ended ? 1 : bar.focusing.face.fraction
                color: bar.ended ? Theme.onWhite : Theme.ring
                trackColor: Theme.ringTrack
            }
        }

        PauseSign {
            objectName: "pauseBeforeReminders"
            visible: bar.paused && bar.reminding
        }

        Time {
            objectName: "time"
            visible: bar.timing && bar.reminding
        }

        Label {
            id: label
            objectName: "label"
            visible: bar.timing
            anchors.verticalCenter: parent.verticalCenter
            readonly property real end: bar.notch > 0 ? bar.pad + bar.side : right.x - bar.gap
            width: Math.max(0, Math.min(implicitWidth, end - left.x - x))
            text: bar.focusing.timerLabel
            style: Theme.chip
            color: bar.reminding ? bar.paleInk : bar.reminderInk
        }

        Icon {
            objectName: "icon"
            visible: first.visible
        }

        ReminderLine {
            id: first
            objectName: "reminders"
            visible: bar.reminding && !bar.timing
            color: bar.reminderInk
            texts: bar.notch > 0 ? bar.reminders.slice(0, Math.ceil(bar.reminders.length / 2))
                                 : bar.reminders
            countsRest: bar.notch === 0
            room: (bar.notch > 0 ? bar.side : bar.width - 2 * bar.pad) - bar.iconRoom - bar.signRoom
        }
    }

    Row {
        id: right
        objectName: "right"
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: bar.pad
        spacing: bar.gap

        PauseSign {
            objectName: "pauseSign"
            visible: bar.paused && bar.timing && !bar.reminding
        }

        Time {
            objectName: "time"
            visible: bar.timing && !bar.reminding
        }

        ReminderLine {
            objectName: "reminders"
            visible: bar.reminding && (bar.timing || bar.notch > 0)
            color: bar.reminderInk
            texts: bar.timing ? bar.reminders : bar.reminders.slice(first.count)
            room: bar.timing ? bar.side - bar.iconRoom : bar.side
        }

        Icon {
            objectName: "icon"
            visible: bar.reminding && bar.timing
        }
    }
}
