import QtQuick
import Ravelo.Controls
import Ravelo.Settings

/// A setting that is on or off.
SettingRow {
    id: row

    property alias on: toggle.on
    /// Object name of the switch.
    required property string preference

    signal toggled(bool on)

    Toggle {
        id: toggle
        objectName: row.preference
        name: row.text
        Accessible.description: row.note
        onToggled: on => row.toggled(on)
    }
}
