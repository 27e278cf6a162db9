import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme
import Ravelo.Usage

/// Usage of both windows of the plan.
Box {
    id: block

    required property Usage usage
    /// Side by side, with the remaining time only.
    required property bool compact

    readonly property real resetWidth: Math.max(session.wantedResetWidth, week.wantedResetWidth)

    readonly property real half: (width - 28 - 24) / 2
    readonly property string whole: session.Accessible.name + "\n" + week.Accessible.name

    implicitHeight: compact ? 44 : 80
    radius: Theme.radiusRow
    color: Theme.surface1
    lineColor: Theme.line
    lineWidth: 1

    UsageRow {
        id: session
        objectName: "usageSession"
        x: 14
        y: 9
        width: block.compact ? block.half : parent.width - 28
        title: qsTr("5h session")
        usage: block.usage.session
        resetWidth: block.compact ? wantedResetWidth : block.resetWidth
        compact: block.compact
        showsTime: area.containsMouse
    }

    UsageRow {
        id: week
        objectName: "usageWeek"
        x: block.compact ? parent.width - 14 - width : 14
        y: block.compact ? 9 : 44
        width: block.compact ? block.half : parent.width - 28
        title: qsTr("Week")
        usage: block.usage.week
        resetWidth: block.compact ? wantedResetWidth : block.resetWidth
        compact: block.compact
        showsTime: area.containsMouse
    }

    MouseArea {
        id: area

        readonly property bool onWeek: block.compact ? mouseX > width / 2 : mouseY > height / 2
        /// As it was when the pointer came.
        readonly property var notes: !containsMouse ? []
            : onWeek ? block.usage.weekNotes() : block.usage.sessionNotes()

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.NoButton
    }

    Tooltip {
        target: block
        hovered: area.containsMouse
        text: Array.of(qsTr("Plan usage — updates while Claude Code is active"),
                       block.compact ? block.whole : "", session.staleText, week.staleText, ...area.notes)
            .filter(line => line !== "").join("\n")
    }
}
