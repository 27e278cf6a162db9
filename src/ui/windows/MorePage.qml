import QtQuick
import Ravelo.Controls
import Ravelo.Windows

/// Settings about other programs.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: qsTr("Language")

        SettingRow {
            text: qsTr("Language")
            note: page.settings.language === page.host.usedLanguage ? "" : qsTr("Applies when Ravelo starts again.")

            ValueButton {
                objectName: "language"
                label: qsTr("Language")
                value: page.settings.language
                // In their own languages.
                choices: [
                    { text: qsTr("As it is"), value: "" },
                    { text: "English (this desktop)", value: "en" },
                    { text: "Deutsch", value: "de" },
                    { text: "Português (Brasil)", value: "pt_BR" }
                ]
                onChosen: value => page.settings.language = value
            }
        }
    }

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
