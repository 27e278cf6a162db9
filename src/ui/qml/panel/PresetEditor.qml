pragma ComponentBehavior: Bound

import QtQuick
import Ravelo

/// Changes what a focus timer can be for. Every change is kept at once.
Popover {
    id: editor

    readonly property FocusControls focusing: host.focusControls

    objectName: "presetEditor"
    contentWidth: 232
    contentHeight: 28 + list.height + 12 + 28
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Label {
        id: title
        text: "Focus presets"
        style: Theme.strong
        color: Theme.text1
    }

    ListView {
        id: list
        // Room for the glow of a field.
        x: -4
        y: 24
        width: parent.width + 8
        height: Math.min(contentHeight, editor.largestHeight - 2 * editor.pad - 68)
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 4
        spacing: 6
        // By number: what is typed into a row must not make the row anew.
        model: editor.focusing.presets.length

        delegate: Item {
            id: row

            required property int index

            width: list.width
            height: 32

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
                    host: editor.host
                    placeholder: "Preset"
                    text: editor.focusing.presets[row.index] ?? ""
                    onTextEdited: editor.focusing.setPreset(row.index, text)
                }
            }

            Pressable {
                id: remove
                objectName: "removePreset" + row.index
                name: "Remove " + line.text
                x: row.width - 21
                y: 7.5
                width: 17
                height: 17
                radius: 8.5
                rest: Theme.none
                hover: Theme.none
                press: Theme.none
                onClicked: editor.focusing.removePreset(row.index)

                Glyph {
                    size: 17
                    symbol: "xmark.circle.fill"
                    color: remove.hovered ? Theme.text2 : Theme.removeGlyph
                }
            }
        }
    }

    CapsuleButton {
        objectName: "addPreset"
        y: parent.height - height
        text: "Add preset"
        lead: 19
        onClicked: {
            editor.focusing.addPreset();
            list.positionViewAtEnd();
        }

        Glyph {
            x: 10
            y: 6.5
            size: 15
            symbol: "plus"
        }
    }
}
