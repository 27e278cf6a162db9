import QtQuick
import Ravelo

/// What is set, and at the right what sets it.
Item {
    id: row

    property alias text: label.text
    default property alias control: place.data

    width: parent?.width ?? 0
    implicitHeight: 44

    Box {
        visible: row.y > 0
        x: 14
        width: parent.width - x
        height: 1
        color: Theme.rowLine
    }

    Label {
        id: label
        objectName: "label"
        x: 14
        y: 14
        tabular: true
        style: Theme.body
        color: Theme.text1
    }

    Item {
        id: place
        x: parent.width - 12 - childrenRect.width
        y: (parent.height - childrenRect.height) / 2
    }
}
