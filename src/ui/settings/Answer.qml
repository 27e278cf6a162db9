import QtQuick
import Ravelo.Theme

/// A line under a field, with a symbol; fades in. Hidden if it is empty.
Row {
    id: answer

    property alias text: label.text
    property alias symbol: glyph.symbol
    property color color: Theme.text3

    spacing: 6
    visible: text !== ""
    opacity: visible ? 1 : 0
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Behavior on opacity {
        NumberAnimation { duration: Theme.floatingIn }
    }

    Glyph {
        id: glyph
        y: 1
        size: 14
        color: answer.color
    }

    Label {
        id: label
        objectName: "answer"
        style: Theme.small
        color: answer.color
    }
}
