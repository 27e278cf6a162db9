import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Vault

/// What LockedView shows.
FocusScope {
    id: page

    required property LockedView view

    readonly property bool asks: view.shown && visible && Vault.asksPassphrase
    /// By a button, when the panel may not have the keyboard.
    readonly property bool asked: asks && Vault.asked
    readonly property bool showsMistake: Vault.asksPassphrase && Vault.problem !== ""

    onAsksChanged: {
        if (asks) {
            field.edited.forceActiveFocus();
        }
    }
    onAskedChanged: {
        if (asked) {
            Typing.wantKeyboard(field);
            field.edited.forceActiveFocus();
        }
    }

    /// As if typed into the field.
    function type(text: string) {
        if (asks) {
            field.edited.forceActiveFocus();
            field.edited.type(text);
        }
    }

    focus: true
    Accessible.role: Accessible.StatusBar
    Accessible.name: Vault.title

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: Vault.asksPassphrase ? 2 : 1

        Box {
            objectName: "lockedDisc"
            visible: page.height >= 180
            anchors.horizontalCenter: parent.horizontalCenter
            width: 64
            height: 64
            radius: 32
            color: Theme.surface1

            Glyph {
                anchors.centerIn: parent
                size: 28
                symbol: "lock"
                color: Theme.text3
            }
        }
        Item {
            width: 1
            height: page.height >= 180 ? 16 : 0
        }
        Label {
            objectName: "lockedTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: Vault.title
            style: Theme.heading
            color: Theme.text1
        }
        Item {
            width: 1
            height: 4
        }
        Label {
            objectName: "lockedDetail"
            anchors.horizontalCenter: parent.horizontalCenter
            text: Vault.detail
            style: Theme.bodyLoose
            color: Theme.text3
        }
        Item {
            width: 1
            height: 16
        }
        CapsuleButton {
            objectName: "unlock"
            visible: Vault.canUnlock
            anchors.horizontalCenter: parent.horizontalCenter
            primary: true
            text: qsTr("Unlock…")
            enabled: !Vault.busy
            onClicked: Vault.unlock()
        }
        Row {
            visible: Vault.asksPassphrase
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            PassphraseField {
                id: field
                objectName: "passphrase"
                focus: true
                placeholder: qsTr("Passphrase")
                enabled: !Vault.busy
                mistaken: page.showsMistake
                onAccepted: Vault.tryPassphrase(field.edited)
            }
            CapsuleButton {
                objectName: "openStore"
                large: true
                primary: true
                text: qsTr("Open")
                enabled: !Vault.busy
                onClicked: Vault.tryPassphrase(field.edited)
            }
        }
        Item {
            visible: Vault.asksPassphrase
            width: 1
            height: 10
        }
        Row {
            visible: Vault.asksPassphrase
            opacity: page.showsMistake ? 1 : 0 // Keeps its place.
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 5

            Glyph {
                size: 14
                symbol: "exclamationmark.circle.fill"
                color: Theme.red
            }
            Label {
                objectName: "passphraseMistake"
                text: Vault.problem
                style: Theme.small
                color: Theme.red
            }
        }
    }
}
