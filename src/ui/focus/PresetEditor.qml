import QtQuick
import Ravelo.Controls
import Ravelo.Focus

/// Edits the focus presets; changes apply at once.
Popover {
    id: editor

    required property Focus focusing

    objectName: "presetEditor"
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Focus presets")
    content: Qt.resolvedUrl("PresetList.qml")
}
