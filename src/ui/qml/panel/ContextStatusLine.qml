import QtQuick
import Ravelo

/// How much of the two windows of the plan is used.
Box {
    id: block

    required property PanelHost host
    /// Without the times at which the windows start anew.
    required property bool compact

    readonly property real resetWidth: Math.max(session.wantedResetWidth, week.wantedResetWidth)

    implicitHeight: 80
    radius: Theme.radiusRow
    color: Theme.surface1
    lineColor: Theme.line
    lineWidth: 1

    UsageRow {
        id: session
        objectName: "usageSession"
        x: 14
        y: 9
        width: parent.width - 28
        title: "5h session"
        usage: block.host.session
        resetWidth: block.resetWidth
        compact: block.compact
    }

    UsageRow {
        id: week
        objectName: "usageWeek"
        x: 14
        y: 44
        width: parent.width - 28
        title: "Week"
        usage: block.host.week
        resetWidth: block.resetWidth
        compact: block.compact
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.NoButton
    }

    Tooltip {
        target: block
        hovered: area.containsMouse
        text: ["Plan usage — updates while Claude Code is active", session.staleText,
               week.staleText].filter(line => line !== "").join("\n")
    }
}
