import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Windows

/// What is captured, and how.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    IgnoreSection {
        objectName: "ignore"
        settings: page.settings
        knowsPrograms: page.host.knowsPrograms
    }

    SettingsSection {
        objectName: "secrets"
        title: qsTr("Secrets")

        SettingRow {
            text: qsTr("Forget secrets after")
            note: qsTr("Tokens, private keys and card numbers are shown masked, kept in memory only and never written to disk.")

            ValueButton {
                objectName: "forgetSecrets"
                label: qsTr("Forget secrets after")
                value: page.settings.forgetSecrets
                choices: [
                    { text: qsTr("Never kept"), value: 0 },
                    { text: qsTr("1 minute"), value: 1 },
                    { text: qsTr("10 minutes"), value: 10 },
                    { text: qsTr("60 minutes"), value: 60 },
                    { text: qsTr("Treat as any text"), value: -1 }
                ]
                onChosen: value => page.settings.forgetSecrets = value
            }
        }

        SwitchRow {
            preference: "keyLikeWords"
            text: qsTr("Single words that look like keys, too")
            on: page.settings.keyLikeWords
            onToggled: on => page.settings.keyLikeWords = on
        }
    }

    SettingsSection {
        objectName: "order"
        title: qsTr("Order and selection")

        SwitchRow {
            preference: "newestFirst"
            text: qsTr("Newest first, always")
            note: qsTr("A new copy goes to the top; the limit drops the oldest.")
            on: page.settings.newestFirst
            onToggled: on => page.settings.newestFirst = on
        }

        SwitchRow {
            preference: "keepTextsExactly"
            text: qsTr("Keep texts exactly")
            note: qsTr("Spaces at the ends are kept, and make another clip.")
            on: page.settings.keepTextsExactly
            onToggled: on => page.settings.keepTextsExactly = on
        }

        SwitchRow {
            preference: "keepSelectedText"
            enabled: page.host.knowsSelection
            opacity: enabled ? 1 : 0.4
            text: qsTr("Keep selected text, too")
            note: page.host.knowsSelection
                ? qsTr("The primary selection, pasted with the middle mouse button.")
                : qsTr("Possible on X11 only.")
            on: page.settings.keepSelectedText
            onToggled: on => page.settings.keepSelectedText = on
        }

        SwitchRow {
            preference: "showOrigins"
            text: qsTr("Show program and size in the list")
            note: page.host.knowsPrograms
                ? qsTr("Of what is copied from now on; also finds it by “app:firefox”.")
                : qsTr("Sizes only: this desktop does not show programs who copied.")
            on: page.settings.showOrigins
            onToggled: on => page.settings.showOrigins = on
        }
    }
}
