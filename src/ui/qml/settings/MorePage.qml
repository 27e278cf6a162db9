import QtQuick
import Ravelo

/// What concerns other programs.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: "Claude Code"

        SwitchRow {
            preference: "hideClaudeCode"
            text: "Hide Claude Code where it is not installed"
            note: "Its rows in the panel and its line in the tooltip of the tray."
            on: page.settings.hideClaudeCode
            onToggled: on => page.settings.hideClaudeCode = on
        }
    }
}
