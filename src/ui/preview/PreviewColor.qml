import QtQuick
import Ravelo.Preview
import Ravelo.Paint
import Ravelo.Theme

/// A color, and how it can be written.
Item {
    id: view

    required property ClipPreview preview

    implicitWidth: 336
    implicitHeight: table.y + table.height + 14

    Box {
        x: 14
        y: 14
        width: parent.width - 28
        height: 96
        radius: 8
        color: view.preview.color
        lineColor: Theme.white(0.16)
        lineWidth: 1
    }

    PreviewTable {
        id: table
        x: 16
        y: 122
        width: parent.width - 32
        preview: view.preview
        namesWidth: 44
    }
}
