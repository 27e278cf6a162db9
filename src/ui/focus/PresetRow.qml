import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Text
import Ravelo.Theme

/// A preset that can be edited or removed.
Item {
    id: row

    required property Focus focusing
    required property int index
    readonly property alias line: line
    readonly property alias cross: remove

    signal removed(byKey: bool)

    height: 32
    Accessible.ignored: true // Qt 6.8 reports the rows of a list as elements of their own.

    FieldFrame {
        input: line
        floats: true
        x: 4
        width: row.width - 33
        height: 32

        EditLine {
            id: line
            objectName: "preset" + row.index
            x: 10
            width: parent.width - 20
            height: parent.height
            placeholder: qsTr("Preset")
            text: row.focusing.presets[row.index] ?? ""
            onTextEdited: row.focusing.setPreset(row.index, text)
        }
    }

    Pressable {
        id: remove
        objectName: "removePreset" + row.index
        name: qsTr("Remove %1").arg(line.text)
        x: row.width - 21
        y: 7.5
        width: 17
        height: 17
        radius: 8.5
        rest: Theme.none
        hover: Theme.none
        press: Theme.none
        onClicked: row.removed(activeFocus)

        Glyph {
            size: 17
            symbol: "xmark.circle.fill"
            color: remove.hovered ? Theme.text2 : Theme.removeGlyph
        }
    }
}
