import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// What a tooltip shows, some time after it was hovered.
Item {
    id: bubble

    required property Tooltip tooltip

    readonly property bool hovered: tooltip.hovered
    property bool rested: false

    onHoveredChanged: rested = false

    Timer {
        interval: Theme.tooltipDelay
        running: bubble.hovered && !bubble.rested
        onTriggered: bubble.rested = true
    }

    // The file cannot be `Bound`: the Loader of Qt 6.4 refuses such a component.
    Loader {
        active: bubble.hovered && bubble.rested
        sourceComponent: Box {
            objectName: "tooltip"
            parent: bubble.Window.contentItem // qmllint disable unqualified
            z: 1000
            width: lines.implicitWidth + 2 * lines.x
            height: lines.implicitHeight + 2 * lines.y
            radius: Theme.radiusSmall
            color: Theme.tooltip
            lineColor: Theme.lineFloating
            lineWidth: 1

            // While the panel's content is deleted, there is neither a target nor a parent.
            readonly property Item target: bubble.tooltip.target // qmllint disable unqualified
            readonly property point edge: target?.mapToItem(null, target.width / 2, 0) ?? Qt.point(0, 0)
            readonly property real below: edge.y + (target?.height ?? 0) + 6
            readonly property real room: (parent?.width ?? 0) - width - Theme.insetSide
            x: Math.round(Math.max(Theme.insetSide, Math.min(edge.x - width / 2, room)))
            y: Math.round(below + height > (parent?.height ?? 0) ? edge.y - 6 - height : below)

            Shadow {
                anchors.fill: parent
                z: -1
                radius: parent.radius
                color: Qt.rgba(0, 0, 0, 0.40)
                blur: 18
                drop: 6
            }

            Column {
                id: lines

                readonly property var texts: bubble.tooltip.text.split("\n") // qmllint disable unqualified
                readonly property bool several: texts.length > 1

                x: several ? 12 : 10
                y: several ? 8 : 6
                spacing: several ? 2 : 0

                Repeater {
                    model: lines.texts

                    Label {
                        required property string modelData
                        required property int index
                        style: Theme.small
                        text: modelData
                        color: index === 0 ? Theme.text1 : Theme.text3
                    }
                }
            }
        }
    }
}
