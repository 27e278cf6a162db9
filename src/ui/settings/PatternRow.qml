import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Windows

/// A pattern, or the field for a new one. A mistake is shown below it and not saved.
Item {
    id: row

    required property AppSettings settings
    required property IgnoreTrial trial
    required property int index
    readonly property alias line: line
    readonly property bool isNew: index >= settings.ignoredPatterns.length

    property string mistake

    signal removed(byKey: bool)
    signal added

    function save() {
        mistake = trial.mistake(line.text);
        const before = settings.ignoredPatterns[index] ?? "";
        if (mistake !== "" || line.text === before) {
            return;
        }
        if (line.text.trim() === "") {
            if (!isNew) {
                removed(false);
            }
            return;
        }
        const patterns = Array.from(settings.ignoredPatterns);
        patterns[index] = line.text;
        settings.ignoredPatterns = patterns;
    }

    width: parent?.width ?? 0
    height: 32 + (reason.visible ? 22 : 0)

    FieldFrame {
        width: row.width - 25
        height: 32
        input: line
        floats: true
        mistaken: row.mistake !== ""

        EditLine {
            id: line
            objectName: "pattern" + row.index
            x: 10
            width: parent.width - 20
            height: parent.height
            placeholder: row.isNew ? qsTr("Add a pattern…") : ""
            text: row.settings.ignoredPatterns[row.index] ?? ""
            Accessible.name: qsTr("Pattern %1").arg(row.index + 1)
            Accessible.description: row.mistake
            onTextEdited: {
                row.mistake = "";
                checking.restart();
            }
            onEditingFinished: row.save()
            onAccepted: {
                if (row.isNew && row.mistake === "" && text.trim() !== "") {
                    row.added();
                }
            }
        }
    }

    Timer {
        id: checking
        interval: 400
        onTriggered: row.mistake = row.trial.mistake(line.text)
    }

    Pressable {
        id: remove
        objectName: "removePattern" + row.index
        visible: !row.isNew
        name: qsTr("Remove pattern %1").arg(row.index + 1)
        x: row.width - 17
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
            color: remove.hovered ? Theme.text2 : Theme.text4
        }
    }

    Answer {
        id: reason
        objectName: "mistake" + row.index
        y: 38
        text: row.mistake
        symbol: "exclamationmark.circle.fill"
        color: Theme.mistake
    }
}
