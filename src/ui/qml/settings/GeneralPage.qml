import QtQuick
import Ravelo

/// How the program starts and looks, and what is stored.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        objectName: "general"
        title: "General"

        SwitchRow {
            preference: "launchAtLogin"
            text: "Start automatically at login"
            on: page.settings.launchAtLogin
            onToggled: on => page.settings.launchAtLogin = on
        }

        Paragraph {
            objectName: "hint"
            x: 14
            width: parent.width - 28
            height: implicitHeight + 12
            text: "Open by moving the mouse to the top-center. A live timer pins a small bar at the top while it runs."
        }
    }

    SettingsSection {
        objectName: "appearance"
        title: "Appearance"

        SwitchRow {
            preference: "fullBlack"
            text: "Full black (for notch Macs)"
            on: page.settings.fullBlack
            onToggled: on => page.settings.fullBlack = on
        }

        SettingRow {
            text: "Darkness"

            Slider {
                objectName: "darkness"
                name: "Darkness"
                given: page.settings.bgOpacity
                minimumValue: 0.3
                maximumValue: 0.85
                onChosen: value => page.settings.bgOpacity = value
            }
        }

        SettingRow {
            objectName: "widthRow"
            text: "Width: " + Math.round(page.settings.panelWidth)

            Slider {
                objectName: "panelWidth"
                name: "Width"
                given: page.settings.panelWidth
                minimumValue: 560
                maximumValue: 1100
                stepSize: 10
                onChosen: value => page.settings.panelWidth = value
            }
        }
    }

    SettingsSection {
        objectName: "clipboard"
        title: "Clipboard"

        SettingRow {
            objectName: "clips"
            text: page.host.clipCount === 1 ? "1 item stored" : page.host.clipCount + " items stored"

            CapsuleButton {
                objectName: "clearHistory"
                text: "Clear history"
                onClicked: page.host.store.clearClips()
            }
        }
    }

    SettingsSection {
        objectName: "sync"
        title: "iPhone sync"

        Item {
            width: parent.width
            height: 12
        }

        Paragraph {
            objectName: "hint"
            x: 14
            width: parent.width - 28
            height: implicitHeight + 12
            text: "Your data is saved locally on this Mac. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app."
        }
    }
}
