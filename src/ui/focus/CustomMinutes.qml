import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Text

/// Asks for any number of minutes.
Popover {
    id: entry

    required property Focus focusing

    function ask(button: Item) {
        line.text = Math.floor(focusing.minutes);
        openUnder(button, 16);
        line.forceActiveFocus();
        line.selectAll();
    }

    function apply() {
        focusing.applyCustomMinutes(line.text);
        close();
    }

    objectName: "customMinutes"
    pad: 12
    contentWidth: 112
    contentHeight: 32
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Custom minutes")

    FieldFrame {
        input: line
        floats: true
        anchors.fill: parent
        radius: 16

        EditLine {
            id: line
            objectName: "minutesInput"
            x: 14
            width: parent.width - 28
            height: parent.height
            placeholder: qsTr("minutes")
            Keys.onReturnPressed: entry.apply()
            Keys.onEnterPressed: entry.apply()
        }
    }
}
