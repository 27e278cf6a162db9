import QtQuick
import Ravelo.Windows

/// What is captured, and how.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
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
    }
}
