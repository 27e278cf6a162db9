import QtQuick
import Ravelo.Controls
import Ravelo.Theme
import Ravelo.Vault

/// Asks for a new passphrase, twice. Has the keyboard once it is shown.
FocusScope {
    id: form

    property bool floats: false
    property alias button: done.text

    signal chosen(PassphraseInput passphrase)

    function finish() {
        if (first.edited.length > 0 && first.edited.equals(again.edited)) {
            again.edited.clear();
            chosen(first.edited);
        } else {
            mistake.visible = true;
        }
    }

    onVisibleChanged: {
        if (visible) {
            first.edited.forceActiveFocus();
        }
    }

    implicitWidth: 240 + 8 + done.implicitWidth
    implicitHeight: 72 + (mistake.visible ? 22 : 0)

    Connections {
        target: first.edited
        function onChanged() {
            mistake.visible = false;
        }
    }

    Connections {
        target: again.edited
        function onChanged() {
            mistake.visible = false;
        }
    }

    PassphraseField {
        id: first
        objectName: "passphrase"
        placeholder: qsTr("Passphrase")
        floats: form.floats
        onAccepted: again.edited.forceActiveFocus()
    }

    PassphraseField {
        id: again
        objectName: "passphraseAgain"
        y: 40
        placeholder: qsTr("The same again")
        floats: form.floats
        mistaken: mistake.visible
        onAccepted: form.finish()
    }

    CapsuleButton {
        id: done
        objectName: "setPassphrase"
        x: 248
        y: 40
        large: true
        primary: true
        text: qsTr("Encrypt")
        enabled: first.edited.length > 0 && !Vault.busy
        onClicked: form.finish()
    }

    Label {
        id: mistake
        objectName: "passphraseMistake"
        visible: false
        y: 78
        text: qsTr("The two are not the same")
        style: Theme.small
        color: Theme.red
    }
}
