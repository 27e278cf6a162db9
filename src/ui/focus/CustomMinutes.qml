import QtQuick
import Ravelo.Controls
import Ravelo.Focus

/// Asks for any number of minutes.
Popover {
    id: entry

    required property Focus focusing

    objectName: "customMinutes"
    pad: 12
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Custom minutes")
    content: Qt.resolvedUrl("CustomMinutesField.qml")
}
