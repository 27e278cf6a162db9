import QtQuick
import Ravelo

/// The settings window's content. Every control changes its preference at once.
TitledPage {
    id: view

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings

    Column {
        x: 20
        y: 52
        width: parent.width - 40
        spacing: 16

        SettingsSection {
            objectName: "general"
            title: "General"

            SettingRow {
                text: "Start automatically at login"

                Toggle {
                    objectName: "launchAtLogin"
                    name: "Start automatically at login"
                    on: view.settings.launchAtLogin
                    onToggled: on => view.settings.launchAtLogin = on
                }
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

            SettingRow {
                text: "Full black (for notch Macs)"

                Toggle {
                    objectName: "fullBlack"
                    name: "Full black (for notch Macs)"
                    on: view.settings.fullBlack
                    onToggled: on => view.settings.fullBlack = on
                }
            }

            SettingRow {
                text: "Darkness"

                Slider {
                    objectName: "darkness"
                    name: "Darkness"
                    given: view.settings.bgOpacity
                    minimumValue: 0.3
                    maximumValue: 0.85
                    onChosen: value => view.settings.bgOpacity = value
                }
            }

            SettingRow {
                objectName: "widthRow"
                text: "Width: " + Math.round(view.settings.panelWidth)

                Slider {
                    objectName: "panelWidth"
                    name: "Width"
                    given: view.settings.panelWidth
                    minimumValue: 560
                    maximumValue: 1100
                    stepSize: 10
                    onChosen: value => view.settings.panelWidth = value
                }
            }
        }

        SettingsSection {
            objectName: "clipboard"
            title: "Clipboard"

            SettingRow {
                objectName: "clips"
                text: view.host.clipCount === 1 ? "1 item stored" : view.host.clipCount + " items stored"

                CapsuleButton {
                    objectName: "clearHistory"
                    text: "Clear history"
                    onClicked: view.host.store.clearClips()
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

    Label {
        objectName: "version"
        x: 34
        y: parent.height - 40
        text: "Ravelo v0.2"
        style: Theme.small
        color: Theme.text4
    }

    CapsuleButton {
        objectName: "quit"
        x: parent.width - 20 - width
        y: parent.height - 46
        text: "Quit Ravelo"
        textColor: Theme.red
        rest: Theme.quit
        hover: Theme.hoveredPower
        press: Theme.pressedPower
        onClicked: view.host.quit()
    }
}
