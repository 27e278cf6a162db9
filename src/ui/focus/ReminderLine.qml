import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// Reminders side by side, as many as fit in `room`, and the count of the rest.
Row {
    id: line

    property alias texts: fit.texts
    property alias room: fit.room
    property alias countsRest: fit.countsRest
    property color color: Theme.text2
    /// Number of texts shown.
    readonly property int count: fit.widths.length

    spacing: 8

    component Dot: Box {
        y: Theme.middle(parent, height, Screen.devicePixelRatio)
        width: 3
        height: 3
        radius: 1.5
        color: Theme.withAlpha(line.color, 0.35) // qmllint disable unqualified
    }

    FittedTexts {
        id: fit
        style: Theme.chip
        gap: 2 * line.spacing + 3
    }

    Repeater {
        model: fit.widths

        Row {
            id: entry

            required property int index
            required property double modelData

            spacing: line.spacing // qmllint disable unqualified

            Dot {
                objectName: "dot" + (entry.index - 1)
                visible: entry.index > 0
            }

            Label {
                objectName: "reminder" + entry.index
                width: entry.modelData
                text: fit.texts[entry.index] ?? "" // qmllint disable unqualified
                style: Theme.chip
                color: line.color // qmllint disable unqualified
            }
        }
    }

    Dot {
        visible: rest.visible
    }

    Label {
        id: rest
        objectName: "rest"
        visible: text !== ""
        text: fit.rest
        style: Theme.chip
        color: line.color
    }
}
