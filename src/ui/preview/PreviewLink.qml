import QtQuick
import Ravelo.Preview
import Ravelo.Theme

/// The parts of a link.
Item {
    id: view

    required property ClipPreview preview
    required property real largest

    implicitHeight: Math.min(largest, (table.height > 0 ? table.y + table.height : 34) + 14)
    clip: true

    Label {
        id: scheme
        x: 16
        y: 14
        text: view.preview.scheme
        style: Theme.bodyLoose
        color: Theme.text3
    }

    Label {
        x: scheme.x + scheme.width
        y: 14
        width: Math.min(implicitWidth, parent.width - 16 - x)
        text: view.preview.host
        style: Theme.strongLoose
        color: Theme.text1
    }

    PreviewTable {
        id: table
        x: 16
        y: 40
        width: parent.width - 32
        preview: view.preview
        namesWidth: 52
    }
}
