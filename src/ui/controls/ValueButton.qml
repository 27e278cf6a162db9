pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Theme

/// Shows a value and opens a menu of the alternatives.
Pressable {
    id: button

    /// Objects with `text` and `value`.
    required property var choices
    required property var value
    /// The current value.
    property string label

    readonly property int current: choices.findIndex(choice => choice.value === value)

    signal chosen(var value)

    function move(by: int) {
        const next = current + by;
        if (next >= 0 && next < choices.length) {
            chosen(choices[next].value);
        }
    }

    name: label + ", " + text.text
    implicitWidth: 12 + text.implicitWidth + 3 + 16 + 6
    implicitHeight: 28
    radius: 14
    rest: menu.opened ? Theme.surface4 : Theme.surface3
    Accessible.role: Accessible.ComboBox
    onClicked: menu.openLeftUnder(button, 0)
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)

    Label {
        id: text
        objectName: "value"
        x: 12
        y: 6
        text: button.choices[button.current]?.text ?? ""
        style: Theme.button
        tabular: true
        color: Theme.text1
    }

    Glyph {
        x: text.x + text.width + 3
        y: 6
        symbol: "chevron.down"
        color: Theme.text3
    }

    Menu {
        id: menu
        objectName: "choices"
        name: button.label
        minWidth: 128
        entries: button.choices.map(choice => ({
            text: choice.text,
            checked: choice.value === button.value,
            chosen: () => button.chosen(choice.value)
        }))
    }
}
