import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// A setting that needs more than a row: a label, and its controls below.
Item {
    id: block

    property alias text: label.text
    default property alias controls: column.data

    width: parent?.width ?? 0
    implicitHeight: column.y + column.height + 12

    Box {
        visible: block.y > 0
        x: 14
        width: parent.width - x
        height: 1
        color: Theme.rowLine
    }

    Label {
        id: label
        objectName: "label"
        x: 14
        y: 12
        style: Theme.body
        color: Theme.text1
    }

    Column {
        id: column
        x: 14
        y: 38
        width: parent.width - 26
        spacing: 6
    }
}
