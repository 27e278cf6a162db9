import QtQuick
import Ravelo

/// Something that is on or off.
SettingRow {
    id: row

    property alias on: toggle.on
    /// Of the switch, for those that look for it.
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
