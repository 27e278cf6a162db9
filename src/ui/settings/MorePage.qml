import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Text
import Ravelo.Windows

/// Settings about other programs.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    NotificationsSection {
        host: page.host
    }

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

        SwitchRow {
            preference: "showPeakHours"
            text: qsTr("Show peak hours")
            on: page.settings.showPeakHours
            onToggled: on => page.settings.showPeakHours = on
        }

        SwitchRow {
            preference: "keepSession"
            text: qsTr("Stay with one session")
            note: qsTr("With several at work, the one that wrote last, until it has been quiet for a minute.")
            on: page.settings.keepSession
            onToggled: on => page.settings.keepSession = on
        }

        SwitchRow {
            preference: "handedOverFirst"
            text: qsTr("Prefer what Claude Code reports")
            note: qsTr("From its status line, if that runs ravelo --store-usage.")
            on: page.settings.handedOverFirst
            onToggled: on => page.settings.handedOverFirst = on
        }

        SettingBlock {
            text: qsTr("Second account")

            FieldFrame {
                width: parent.width
                height: 32
                input: secondAccount
                floats: true

                EditLine {
                    id: secondAccount
                    objectName: "secondAccount"
                    x: 10
                    width: parent.width - 20
                    height: parent.height
                    placeholder: qsTr("Its CLAUDE_CONFIG_DIR…")
                    text: page.settings.secondAccount
                    Accessible.name: qsTr("Folder of the second account")
                    onEditingFinished: page.host.chooseSecondAccount(text.trim())
                }
            }

            Answer {
                objectName: "accountProblem"
                text: page.host.accountProblem
                symbol: "exclamationmark.circle.fill"
            }
        }
    }
}
