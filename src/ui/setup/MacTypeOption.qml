import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// A radio button with a symbol and a description.
Pressable {
    id: option

    property alias symbol: glyph.symbol
    property alias title: title.text
    property alias detail: detail.text
    required property bool selected

    name: title.text
    Accessible.description: detail.text
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: selected
    implicitHeight: 68
    radius: Theme.radiusEditor
    rest: selected ? Theme.selectedOption : Theme.tray
    hover: selected ? Theme.selectedOption : Theme.hoveredCard
    press: selected ? Theme.selectedOption : Theme.pressedCard
    lineColor: selected ? Theme.selectedOptionLine : Theme.rowLine
    lineWidth: selected ? 1.5 : 1

    Box {
        objectName: "tile"
        x: 16
        y: 14
        width: 40
        height: 40
        radius: 12
        color: option.selected ? Theme.selectedOptionTile : Theme.surface2

        Glyph {
            id: glyph
            objectName: "symbol"
            anchors.centerIn: parent
            size: 22
            color: option.selected ? Theme.selectedOptionGlyph : Theme.text2
        }
    }

    Label {
        id: title
        objectName: "title"
        x: 70
        y: detail.text === "" ? 24 : 16
        style: Theme.tab
        color: Theme.text1
    }

    Label {
        id: detail
        objectName: "detail"
        x: 70
        y: 36
        style: Theme.small
        color: Theme.text3
    }

    Glyph {
        objectName: "mark"
        x: option.width - 18 - width
        y: 23
        size: 22
        symbol: option.selected ? "checkmark.circle.fill" : "circle"
        color: option.selected ? Theme.accent : Theme.optionMark
    }
}
