import QtQuick
import Ravelo

/// How much of the two windows of the plan is used.
Box {
    id: block

    required property PanelHost host
    /// Side by side, with only how much time is left.
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
        title: "5h session"
        usage: block.host.session
        resetWidth: block.compact ? wantedResetWidth : block.resetWidth
        compact: block.compact
    }

    UsageRow {
        id: week
        objectName: "usageWeek"
        x: block.compact ? parent.width - 14 - width : 14
        y: block.compact ? 9 : 44
        width: block.compact ? block.half : parent.width - 28
        title: "Week"
        usage: block.host.week
        resetWidth: block.compact ? wantedResetWidth : block.resetWidth
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
        text: Array.of("Plan usage — updates while Claude Code is active",
                       block.compact ? block.whole : "", session.staleText, week.staleText)
            .filter(line => line !== "").join("\n")
    }
}
