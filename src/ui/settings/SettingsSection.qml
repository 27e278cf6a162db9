import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// A heading and a block of rows.
Column {
    id: section

    property alias title: heading.text
    default property alias rows: rows.data

    width: parent?.width ?? 0
    spacing: 6

    Label {
        id: heading
        objectName: "heading"
        x: 14
        style: Theme.button
        color: Theme.text3
    }

    Box {
        objectName: "block"
        width: parent.width
        height: rows.height
        radius: Theme.radiusPopover
        color: Theme.tray
        lineColor: Theme.trayLine
        lineWidth: 1

        Column {
            id: rows
            width: parent.width
        }
    }
}
