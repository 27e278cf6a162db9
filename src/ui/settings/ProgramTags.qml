pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Windows

/// The programs whose copies are ignored, and a field to add one.
Flow {
    id: tags

    required property AppSettings settings

    function add(name: string) {
        const known = Array.from(settings.ignoredPrograms).some(one => one.toLowerCase() === name.toLowerCase());
        if (name !== "" && !known) {
            settings.ignoredPrograms = Array.from(settings.ignoredPrograms).concat([name]);
        }
    }

    function remove(index: int, byKey: bool) {
        settings.ignoredPrograms = Array.from(settings.ignoredPrograms).filter((name, at) => at !== index);
        if (byKey) {
            (names.itemAt(Math.min(index, names.count - 1)) ?? field).forceActiveFocus();
        }
    }

    spacing: 6

    Repeater {
        id: names
        model: tags.settings.ignoredPrograms

        Pressable {
            id: tag

            required property int index
            required property string modelData

            objectName: "program" + index
            name: qsTr("Remove %1").arg(modelData)
            width: Math.min(label.implicitWidth + 35, tags.width)
            height: 24
            radius: 12
            onClicked: tags.remove(index, activeFocus)
            Keys.onDeletePressed: tags.remove(index, true)

            Label {
                id: label
                x: 10
                y: 4
                width: Math.min(implicitWidth, tag.width - 35)
                style: Theme.chip
                text: tag.modelData
                color: Theme.text1
            }

            Glyph {
                x: tag.width - 19
                y: 7
                size: 10
                symbol: "xmark"
                color: tag.hovered ? Theme.text1 : Theme.text4
            }
        }
    }

    Box {
        width: 96
        height: 24
        radius: 12
        color: Theme.surface1
        lineColor: field.activeFocus ? Theme.withAlpha(Theme.accent, 0.55) : Theme.line
        lineWidth: 1

        EditLine {
            id: field
            objectName: "addProgram"
            x: 10
            width: parent.width - 20
            height: parent.height
            style: Theme.small
            placeholder: qsTr("Add…")
            Accessible.name: qsTr("Add a program")
            onEditingFinished: {
                tags.add(text.trim());
                clear();
            }
            Keys.onEscapePressed: event => {
                event.accepted = text !== "";
                clear();
            }
        }
    }
}
