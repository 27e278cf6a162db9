import QtQuick
import Ravelo.Paint
import Ravelo.Theme
import Ravelo.Usage

/// One window of the plan: name, percentage, reset time and a bar.
Item {
    id: row

    required property string title
    required property usageLine usage
    /// The widest in the block, so that the percentages line up.
    required property real resetWidth
    /// Show the remaining time only.
    required property bool compact
    /// Show how much of the window's time has passed.
    required property bool showsTime
    readonly property real wantedResetWidth: compact ? reset.implicitWidth
                                                     : Math.max(90, reset.implicitWidth)

    /// Empty unless the percentage is older than the last reset.
    readonly property string staleText:
        usage.resetPassed ? qsTr("%1 has reset; %2 is from before the reset").arg(title).arg(usage.percent) : ""

    Accessible.role: Accessible.StaticText
    Accessible.name: title + " " + usage.percent + " " + usage.reset
    Accessible.description: staleText + usage.pace
    implicitHeight: 27

    readonly property color bandColor: {
        switch (usage.band) {
        case UsageBand.Critical:
            return Theme.red;
        case UsageBand.High:
            return Theme.yellow;
        default:
            return Theme.green;
        }
    }

    Label {
        id: name
        text: row.title
        style: Theme.strong
        color: Theme.text1
    }

    // Shown only if the plan may not last.
    Label {
        objectName: "pace"
        visible: !row.compact && text !== ""
        x: name.width + 10
        width: Math.min(implicitWidth, percent.x - 10 - x)
        y: Theme.strong.baseLine(Screen.devicePixelRatio) - style.baseLine(Screen.devicePixelRatio)
        text: row.usage.pace
        style: Theme.subtitle
        tabular: true
        color: Theme.text3
    }

    Label {
        id: percent
        objectName: "percent"
        anchors.right: parent.right
        anchors.rightMargin: row.resetWidth > 0 ? row.resetWidth + 8 : 0
        text: row.usage.percent
        style: Theme.strong
        tabular: true
        color: Theme.text1
    }

    Label {
        id: reset
        anchors.right: parent.right
        text: row.compact ? row.usage.left : row.usage.reset
        y: Theme.strong.baseLine(Screen.devicePixelRatio) - style.baseLine(Screen.devicePixelRatio)
        style: Theme.subtitle
        tabular: true
        color: Theme.text4
    }

    Box {
        objectName: "track"
        y: 22
        width: parent.width
        height: 5
        radius: 2.5
        color: Theme.surface3

        Box {
            visible: row.usage.known
            width: Math.max(5, row.usage.fraction * parent.width)
            height: 5
            radius: 2.5
            color: Theme.withAlpha(row.bandColor, 0.7)
            endColor: row.bandColor

            Behavior on width {
                enabled: row.visible
                NumberAnimation {
                    duration: Theme.filling
                    easing.type: Easing.InOutQuad
                }
            }
        }

        Box {
            objectName: "time"
            visible: row.showsTime && row.usage.passed >= 0
            x: Math.round(row.usage.passed * (parent.width - 2)) - 1
            width: 4
            height: 5
            color: Theme.timeMarkRim

            Box {
                x: 1
                width: 2
                height: 5
                color: Theme.text3
            }
        }
    }
}
