pragma ComponentBehavior: Bound

import QtQuick
import Ravelo.Controls
import Ravelo.Setup
import Ravelo.Theme
import Ravelo.Vault

/// The step that offers encryption. Nothing changes before "Continue".
FocusScope {
    id: step

    signal done

    readonly property var kinds: [
        {
            value: "plain", symbol: "folder", title: qsTr("Plain files"), possible: true,
            detail: qsTr("Readable by your account, and from a copy of the disk")
        },
        {
            value: "keyring", symbol: "key", title: qsTr("Encrypt, key in the keyring"), possible: Vault.hasKeyring && !Vault.locked,
            detail: Vault.hasKeyring ? qsTr("Opens with your login, nothing to type")
                                     : qsTr("No keyring on this desktop")
        },
        {
            value: "passphrase", symbol: "keyboard", title: qsTr("Encrypt with a passphrase"), possible: true,
            detail: qsTr("Asked for once per login; it cannot be recovered")
        }
    ]
    property int current: Vault.on ? (Vault.byPassphrase ? 2 : 1) : 0
    /// Waits for the choice to take effect.
    property bool waiting: false

    function moveTo(index: int) {
        if (kinds[index]?.possible) {
            current = index;
            options.itemAt(index).forceActiveFocus();
        }
    }

    function finish() {
        const chosen = kinds[current].value;
        const settled = Vault.on && (!Vault.byPassphrase || chosen === "passphrase");
        if (Vault.busy) {
            return;
        }
        if (chosen === "plain" || settled || Vault.locked) {
            done();
        } else if (chosen === "keyring") {
            waiting = true;
            Vault.useKeyring();
        } else {
            form.forceActiveFocus();
        }
    }

    Component.onCompleted: Vault.look()
    Keys.onReturnPressed: finish()
    Keys.onEnterPressed: finish()

    Connections {
        target: Vault
        function onChanged() {
            if (step.waiting && !Vault.busy) {
                step.waiting = false;
                if (Vault.on && Vault.problem === "") {
                    step.done();
                }
            }
        }
    }

    ScrolledPage {
        id: scrolled
        y: 40
        width: parent.width
        height: (form.visible ? step.height - 36 : next.y - 8) - y
        contentHeight: form.visible ? form.y + form.height + 8 : problem.visible ? problem.y + problem.height : 334

        Label {
            objectName: "heading"
            x: (scrolled.width - width) / 2
            y: 32
            text: qsTr("Encrypt what Ravelo keeps?")
            style: Theme.question
            color: Theme.text1
        }

        Label {
            objectName: "line"
            x: (scrolled.width - width) / 2
            y: 68
            text: qsTr("You can change this later in the settings, under Storage.")
            style: Theme.lead
            color: Theme.setupText
        }

        Repeater {
            id: options
            model: step.kinds

            MacTypeOption {
                required property var modelData
                required property int index

                objectName: modelData.value
                x: 32
                y: 110 + 78 * index
                width: step.width - 64
                symbol: modelData.symbol
                title: modelData.title
                detail: modelData.detail
                enabled: modelData.possible
                selected: index === step.current
                onClicked: step.current = index
                Keys.onUpPressed: step.moveTo(index - 1)
                Keys.onDownPressed: step.moveTo(index + 1)
            }
        }

        NewPassphrase {
            id: form
            visible: step.current === 2 && !Vault.on
            onVisibleChanged: {
                if (visible) {
                    scrolled.scrollToEnd();
                }
            }
            x: (scrolled.width - width) / 2
            y: 110 + 78 * 3 + 4
            onChosen: passphrase => {
                step.waiting = true;
                Vault.usePassphrase(passphrase);
            }
        }

        Paragraph {
            id: problem
            objectName: "problem"
            visible: Vault.problem !== "" && !form.visible
            x: 32
            y: 110 + 78 * 3 + 4
            width: scrolled.width - 64
            horizontalAlignment: Text.AlignHCenter
            text: Vault.problem
            color: Theme.red
        }
    }

    CapsuleButton {
        id: next
        objectName: "continue"
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(398, parent.height - 86)
        implicitHeight: 40
        sidePad: 24
        style: Theme.tab
        primary: true
        visible: !form.visible
        text: qsTr("Continue")
        enabled: !Vault.busy
        onClicked: step.finish()
    }
}
