import QtQuick
import Ravelo.Controls
import Ravelo.Focus
import Ravelo.Text

/// The field of CustomMinutes.
FieldFrame {
    id: field

    required property CustomMinutes popover

    readonly property bool opened: popover.opened

    function apply() {
        field.popover.focusing.applyCustomMinutes(line.text);
        field.popover.close();
    }

    input: line
    floats: true
    implicitWidth: 112
    implicitHeight: 32
    radius: 16
    onOpenedChanged: {
        if (opened) {
            line.text = Math.floor(field.popover.focusing.minutes);
            line.forceActiveFocus();
            line.selectAll();
        }
    }

    EditLine {
        id: line
        objectName: "minutesInput"
        x: 14
        width: parent.width - 28
        height: parent.height
        placeholder: qsTr("minutes")
        Keys.onReturnPressed: field.apply()
        Keys.onEnterPressed: field.apply()
    }
}
