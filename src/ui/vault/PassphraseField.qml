import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme
import Ravelo.Vault

/// A field for a passphrase: one dot a character.
FieldFrame {
    id: field

    property alias edited: secret
    property string placeholder

    signal accepted

    input: secret
    implicitWidth: 240
    implicitHeight: 32

    Accessible.role: Accessible.EditableText
    Accessible.passwordEdit: true
    Accessible.name: placeholder

    PassphraseInput {
        id: secret
        objectName: "secret"
        anchors.fill: parent
        focus: true
        onAccepted: field.accepted()
    }

    Item {
        x: 10
        width: parent.width - 20
        height: parent.height
        clip: true

        Row {
            id: dots
            objectName: "dots"
            x: Math.min(0, parent.width - width - 4)
            anchors.verticalCenter: parent.verticalCenter
            spacing: 5

            Repeater {
                model: secret.length

                Box {
                    width: 4
                    height: 4
                    radius: 2
                    color: Theme.text1
                }
            }
        }

        Caret {
            visible: secret.activeFocus
            x: dots.x + dots.width + (secret.length > 0 ? 3 : 0)
            anchors.verticalCenter: parent.verticalCenter
            height: 16
        }

        Label {
            objectName: "hint"
            visible: secret.length === 0
            x: secret.activeFocus ? 2.5 : 0
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - x
            text: field.placeholder
            color: Theme.placeholder
            style: Theme.body
        }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: {
            Typing.wantKeyboard(secret);
            secret.forceActiveFocus();
        }
    }
}
