import QtQuick
import Ravelo.Controls
import Ravelo.Windows

/// How much is kept.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: qsTr("Keep")

        SettingRow {
            text: qsTr("History length")
            note: qsTr("Pinned clips stay. A shorter limit applies from the next copy.")

            ValueButton {
                objectName: "historyLength"
                label: qsTr("History length")
                value: page.settings.historyLength
                choices: [
                    { text: qsTr("60 clips"), value: 60 },
                    { text: qsTr("200 clips"), value: 200 },
                    { text: qsTr("1,000 clips"), value: 1000 }
                ]
                onChosen: value => page.settings.historyLength = value
            }
        }
    }
}
