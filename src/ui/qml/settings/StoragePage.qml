import QtQuick
import Ravelo

/// How much is kept.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: "Keep"

        SettingRow {
            text: "History length"
            note: "Pinned clips stay. A shorter one counts from the next copy."

            ValueButton {
                objectName: "historyLength"
                label: "History length"
                value: page.settings.historyLength
                choices: [
                    { text: "60 clips", value: 60 },
                    { text: "200 clips", value: 200 },
                    { text: "1,000 clips", value: 1000 }
                ]
                onChosen: value => page.settings.historyLength = value
            }
        }
    }
}
