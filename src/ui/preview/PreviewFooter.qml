import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// The last line of a preview: where and when on the left, what it is on the right.
Item {
    id: footer

    property string origin
    property list<string> details

    implicitWidth: where.implicitWidth + 16 + row.implicitWidth
    height: 36

    Box {
        width: parent.width
        height: 1
        color: Theme.divider
    }

    Label {
        id: where
        y: 11
        width: Math.min(implicitWidth, row.x - 16)
        text: footer.origin
        style: Theme.subtitle
        color: Theme.text3
    }

    Row {
        id: row
        x: parent.width - width
        y: 11
        spacing: 16

        Repeater {
            model: footer.details

            Label {
                required property string modelData

                visible: text !== ""
                text: modelData
                style: Theme.subtitle
                color: Theme.text3
            }
        }
    }
}
