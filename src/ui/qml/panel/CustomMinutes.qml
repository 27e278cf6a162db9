import QtQuick
import Ravelo

/// Where any number of minutes can be typed.
Popover {
    id: entry

    function ask(button: Item) {
        line.text = Math.floor(host.focusControls.minutes);
        openUnder(button, 16);
        line.forceActiveFocus();
        line.selectAll();
    }

    function apply() {
        host.focusControls.applyCustomMinutes(line.text);
        close();
    }

    objectName: "customMinutes"
    pad: 12
    contentWidth: 112
    contentHeight: 32
    Accessible.role: Accessible.Dialog
    Accessible.name: "Custom minutes"

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
            host: entry.host
            placeholder: "minutes"
            Keys.onReturnPressed: entry.apply()
            Keys.onEnterPressed: entry.apply()
        }
    }
}
