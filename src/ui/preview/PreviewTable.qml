pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Preview
import Ravelo.Theme

/// The names and values of a preview in two columns.
Column {
    id: table

    required property ClipPreview preview
    required property real namesWidth

    Repeater {
        model: table.preview.names

        Item {
            id: line

            required property string modelData
            required property int index

            width: table.width
            height: 20

            Label {
                width: Math.min(implicitWidth, table.namesWidth - 6)
                text: line.modelData
                style: Theme.bodyLoose
                color: Theme.text3
            }

            Label {
                x: table.namesWidth
                width: Math.min(implicitWidth, table.width - x)
                text: table.preview.values[line.index] ?? ""
                style: Theme.bodyLoose
                color: Theme.text1
            }
        }
    }
}
