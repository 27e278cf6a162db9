import QtQuick
import Ravelo.Paint
import Ravelo.Theme

/// A setting: label, control at the right, and optionally a note below.
Item {
    id: row

    property alias text: label.text
    /// After the text, in grey.
    property alias amount: amount.text
    property alias note: note.text
    property alias noteColor: note.color
    default property alias control: place.data

    width: parent?.width ?? 0
    implicitHeight: note.text === "" ? 44 : 40 + note.implicitHeight + 12

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

    Label {
        id: amount
        objectName: "amount"
        x: label.x + label.width + 8
        y: 15
        tabular: true
        style: Theme.small
        color: Theme.text3
    }

    Item {
        id: place
        x: parent.width - 12 - childrenRect.width
        y: (44 - childrenRect.height) / 2
    }

    Paragraph {
        id: note
        objectName: "note"
        visible: text !== ""
        x: 14
        y: 40
        width: parent.width - 28
    }
}
