import QtQuick
import Ravelo.Windows

/// Settings about other programs.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: qsTr("Claude Code")

        SwitchRow {
            preference: "hideClaudeCode"
            text: qsTr("Hide Claude Code where it is not installed")
            note: qsTr("Its rows in the panel and its line in the tray tooltip.")
            on: page.settings.hideClaudeCode
            onToggled: on => page.settings.hideClaudeCode = on
        }
    }
}
