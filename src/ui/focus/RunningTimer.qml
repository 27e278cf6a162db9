import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Theme

/// The running timer with a stop button.
Item {
    id: timer

    required property Focus focusing
    /// Maximum width.
    required property real room

    readonly property bool keyed: stop.activeFocus

    implicitWidth: stop.x + stop.width
    implicitHeight: 32

    Glyph {
        y: 7
        size: 18
        symbol: "hourglass"
        color: Theme.icon
    }

    Label {
        id: time
        objectName: "runningTime"
        x: 26
        y: 2
        text: timer.focusing.face.remaining
        style: Theme.timer
        tabular: true
        color: Theme.text1
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Label {
        id: label
        objectName: "runningLabel"
        readonly property real wanted: Math.min(160, implicitWidth)

        x: time.x + time.width + 10
        y: 9
        width: Math.max(0, Math.min(wanted, timer.room - x - 16 - stop.width))
        text: timer.focusing.timerLabel
        style: Theme.small
        color: Theme.caption
    }

    CapsuleButton {
        id: stop
        objectName: "stopTimer"
        x: label.x + label.width + (label.width > 0 ? 16 : 6)
        y: 2
        text: qsTr("Stop")
        lead: 20
        onClicked: timer.focusing.stopTimer()

        Glyph {
            x: 10
            y: 6
            symbol: "stop.fill"
        }
    }
}
