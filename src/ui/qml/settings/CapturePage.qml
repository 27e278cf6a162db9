import QtQuick
import Ravelo

/// What becomes of a copy.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        title: "Order and selection"

        SwitchRow {
            preference: "newestFirst"
            text: "Newest first, always"
            note: "A new copy goes to the top; the limit drops the oldest."
            on: page.settings.newestFirst
            onToggled: on => page.settings.newestFirst = on
        }

        SwitchRow {
            preference: "keepTextsExactly"
            text: "Keep texts exactly"
            note: "Spaces at the ends are kept, and make another clip."
            on: page.settings.keepTextsExactly
            onToggled: on => page.settings.keepTextsExactly = on
        }
    }
}
