import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Theme
import Ravelo.Vault
import Ravelo.Windows

/// Start, look and storage.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    spacing: 12

    SettingsSection {
        objectName: "extension"
        visible: page.host.extension.isOffered
        title: qsTr("GNOME")

        SettingRow {
            text: qsTr("Extension of GNOME Shell")
            readonly property string why: page.host.extension.isWaiting ? "" : qsTr("Without it, Ravelo does not see all copies, opens only on its handle, and closes when the pointer leaves it.")
            note: `${why} ${page.host.extension.next}`.trim()

            CapsuleButton {
                objectName: "turnOn"
                visible: page.host.extension.canTurnOn
                text: qsTr("Turn on")
                onClicked: page.host.extension.turnOn()
            }
        }
    }

    SettingsSection {
        objectName: "general"
        title: qsTr("General")

        SwitchRow {
            preference: "launchAtLogin"
            text: qsTr("Start automatically at login")
            note: page.host.loginNote
            on: page.settings.launchAtLogin
            onToggled: on => page.settings.launchAtLogin = on
        }

        Paragraph {
            objectName: "hint"
            x: 14
            width: parent.width - 28
            height: implicitHeight + 12
            text: qsTr("Open by moving the mouse to the top-center. A live timer pins a small bar at the top while it runs.")
        }
    }

    SettingsSection {
        objectName: "appearance"
        title: qsTr("Appearance")

        SwitchRow {
            preference: "fullBlack"
            text: qsTr("Full black (for notch Macs)")
            on: page.settings.fullBlack
            onToggled: on => page.settings.fullBlack = on
        }

        SettingRow {
            text: qsTr("Darkness")

            Slider {
                objectName: "darkness"
                name: qsTr("Darkness")
                given: page.settings.bgOpacity
                minimumValue: 0.3
                maximumValue: 0.85
                onChosen: value => page.settings.bgOpacity = value
            }
        }

        SettingRow {
            objectName: "widthRow"
            text: qsTr("Width: %1").arg(String(Math.round(page.settings.panelWidth)))

            Slider {
                objectName: "panelWidth"
                name: qsTr("Width")
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
        title: qsTr("Clipboard")

        SettingRow {
            objectName: "clips"
            enabled: !Vault.locked
            text: Vault.locked ? qsTr("Locked") : page.host.clipCount === 1 ? qsTr("1 item stored") : qsTr("%1 items stored").arg(page.host.clipCount)

            CapsuleButton {
                objectName: "clearHistory"
                text: qsTr("Clear history")
                onClicked: page.host.clearClips()
            }
        }
    }

    SettingsSection {
        objectName: "sync"
        title: qsTr("iPhone sync")

        Item {
            width: parent.width
            height: 12
        }

        Paragraph {
            objectName: "hint"
            x: 14
            width: parent.width - 28
            height: implicitHeight + 12
            text: qsTr("Your data is saved locally on this Mac. Syncing to an iPhone app is the next phase — it needs an Apple Developer account and a companion iOS app.")
        }
    }
}
