import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Theme
import Ravelo.Vault
import Ravelo.Windows

/// How much is kept and for how long, whether it is encrypted, and erasing it.
Column {
    id: page

    required property SettingsWindow host

    readonly property AppSettings settings: host.settings
    /// The user has chosen a passphrase, and has not typed it yet.
    property bool newPassphrase: false
    readonly property bool windowShown: Window.visibility !== Window.Hidden // qmllint disable unqualified

    function encrypt(on: bool) {
        newPassphrase = on && !Vault.on && !Vault.hasKeyring;
        if (!on) {
            Vault.turnOff();
        } else if (!newPassphrase) {
            Vault.useKeyring();
        }
    }

    function useKey(passphrase: bool) {
        newPassphrase = passphrase;
        if (!passphrase && Vault.on) {
            Vault.useKeyring();
        }
    }

    spacing: 12
    onWindowShownChanged: newPassphrase = false // What is not finished ends with the window.
    Component.onCompleted: {
        Vault.look();
        host.refreshSizes();
    }

    SettingsSection {
        objectName: "keep"
        title: qsTr("Keep")

        SettingRow {
            text: qsTr("History length")
            note: qsTr("A shorter limit applies from the next copy.")

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

        SettingRow {
            text: qsTr("Keep for")

            ValueButton {
                objectName: "keepDays"
                label: qsTr("Keep for")
                value: page.settings.keepDays
                choices: [
                    { text: qsTr("Forever"), value: 0 },
                    { text: qsTr("30 days"), value: 30 },
                    { text: qsTr("7 days"), value: 7 },
                    { text: qsTr("1 day"), value: 1 }
                ]
                onChosen: value => page.settings.keepDays = value
            }
        }

        SettingRow {
            text: qsTr("Texts")
            amount: Vault.locked ? "" : qsTr("%1 used").arg(page.host.textSize)

            ValueButton {
                objectName: "textLimit"
                label: qsTr("Texts")
                value: page.settings.textLimit
                choices: [
                    { text: qsTr("No limit"), value: 0 },
                    { text: qsTr("16 MB"), value: 16 },
                    { text: qsTr("64 MB"), value: 64 },
                    { text: qsTr("256 MB"), value: 256 }
                ]
                onChosen: value => page.settings.textLimit = value
            }
        }

        SettingRow {
            text: qsTr("Images")
            amount: Vault.locked ? "" : qsTr("%1 used").arg(page.host.imageSize)
            note: qsTr("Pinned clips stay. When it is full, the oldest go first.")

            ValueButton {
                objectName: "imageLimit"
                label: qsTr("Images")
                value: page.settings.imageLimit
                choices: [
                    { text: qsTr("No limit"), value: 0 },
                    { text: qsTr("128 MB"), value: 128 },
                    { text: qsTr("512 MB"), value: 512 },
                    { text: qsTr("2 GB"), value: 2048 }
                ]
                onChosen: value => page.settings.imageLimit = value
            }
        }
    }

    SettingsSection {
        objectName: "encryption"
        title: qsTr("Encryption")

        SwitchRow {
            preference: "encrypt"
            text: qsTr("Encrypt what is stored")
            on: Vault.on || page.newPassphrase
            enabled: !Vault.busy && !Vault.locked
            onToggled: on => page.encrypt(on)
        }

        SettingRow {
            text: qsTr("Key")
            note: Vault.problem
            noteColor: Theme.mistake
            enabled: !Vault.busy && !Vault.locked

            ValueButton {
                objectName: "key"
                label: qsTr("Key")
                readonly property bool hasKeyring: Vault.hasKeyring || (Vault.on && !Vault.byPassphrase)
                value: Vault.byPassphrase || page.newPassphrase || !hasKeyring
                choices: (hasKeyring ? [{ text: qsTr("From the keyring"), value: false }] : []).concat([
                    { text: qsTr("Passphrase…"), value: true }
                ])
                onChosen: value => page.useKey(value)
            }
        }

        Item {
            visible: page.newPassphrase
            width: parent.width
            height: form.height + 12

            NewPassphrase {
                id: form
                x: 14
                onChosen: passphrase => {
                    Vault.usePassphrase(passphrase); // First: a hidden field is empty.
                    page.newPassphrase = false;
                }
            }
        }

        SwitchRow {
            preference: "forgetKeyWhileLocked"
            text: qsTr("Forget the key while the screen is locked")
            note: qsTr("Clips, notes, snippets and images. Without the key nobody can read them, you included. Settings and reminders stay plain.")
            enabled: Vault.on
            opacity: Vault.on ? 1 : 0.4
            on: page.settings.forgetKeyWhileLocked
            onToggled: on => page.settings.forgetKeyWhileLocked = on
        }
    }

    SettingsSection {
        objectName: "snippets"
        title: qsTr("Snippets")

        SettingRow {
            text: Vault.locked ? qsTr("Locked") : page.host.snippetCount === 1 ? qsTr("1 snippet") : qsTr("%1 snippets").arg(page.host.snippetCount)
            note: page.host.snippetNews !== "" ? page.host.snippetNews
                : qsTr("As a file to pass on, with their images. It is not encrypted.")
            noteColor: page.host.snippetsFailed ? Theme.mistake : Theme.text3
            enabled: !Vault.locked

            Row {
                spacing: 8

                CapsuleButton {
                    objectName: "importSnippets"
                    text: qsTr("Import…")
                    onClicked: page.host.importSnippets()
                }

                CapsuleButton {
                    objectName: "exportSnippets"
                    text: qsTr("Export…")
                    onClicked: page.host.exportSnippets()
                }
            }
        }
    }

    SettingsSection {
        objectName: "erase"
        title: qsTr("Erase")

        SettingRow {
            text: qsTr("The last hour")
            enabled: !Vault.locked
            amount: Vault.locked ? qsTr("locked") : page.host.lastHourCount === 1 ? qsTr("1 item") : qsTr("%1 items").arg(page.host.lastHourCount)

            CapsuleButton {
                id: clearButton
                objectName: "clearLastHour"
                text: qsTr("Clear")
                onClicked: hourQuestion.openLeftUnder(clearButton, 0)
            }
        }

        SettingRow {
            text: qsTr("Everything on this computer")
            note: qsTr("History, notes, snippets, shelf and settings are removed from the disk at once, and Ravelo ends. Your files stay where they are.")

            CapsuleButton {
                id: eraseButton
                objectName: "eraseEverything"
                text: qsTr("Erase everything…")
                textColor: Theme.red
                rest: Theme.quit
                hover: Theme.hoveredPower
                press: Theme.pressedPower
                onClicked: question.openLeftUnder(eraseButton, 0)
            }
        }
    }

    Question {
        id: hourQuestion
        objectName: "clearHourQuestion"
        text: qsTr("Clear the last hour?")
        detail: qsTr("There is no undo.")
        yesText: qsTr("Clear")
        destroys: true
        onAccepted: page.host.clearLastHour()
    }

    Question {
        id: question
        objectName: "eraseQuestion"
        text: qsTr("Erase everything on this computer?")
        detail: qsTr("There is no undo.")
        yesText: qsTr("Erase")
        destroys: true
        onAccepted: page.host.erase()
    }
}
