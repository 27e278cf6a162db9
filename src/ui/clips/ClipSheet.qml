import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Text
import Ravelo.Theme

/// The editor of a clip's text.
Sheet {
    id: layer

    required property ClipEditor editor

    /// Asks first if the text was changed.
    function leave() {
        if (editor.draft === editor.text) {
            editor.discard();
        } else {
            question.openOver(dialog);
        }
    }

    objectName: "clipSheet"
    editing: editor.editing
    resumed: editor.resumed
    heading: qsTr("Edit clip")
    onBegan: {
        body.exactText = editor.draft;
        body.forceActiveFocus();
        body.cursorPosition = body.length;
    }
    onConfirmed: editor.copy()
    onEscaped: leave()

    FieldFrame {
        id: bodyField
        objectName: "bodyField"
        input: body
        floats: true
        x: 20
        y: 56
        width: parent.width - 40
        height: 270 - layer.cut

        ScrolledEdit {
            anchors.fill: parent
            anchors.margins: 10
            edit: body

            EditArea {
                id: body
                objectName: "clipInput"
                name: qsTr("Text")
                width: parent.width
                style: Theme.bodyLoose
                color: Theme.text1
                // Not `onTextChanged`, which comes before `exactText` follows, and while the
                // field is still empty.
                onExactTextChanged: layer.editor.draft = exactText
                KeyNavigation.priority: KeyNavigation.BeforeItem
                KeyNavigation.tab: cancel
                KeyNavigation.backtab: copy
            }
        }
    }

    CapsuleButton {
        id: cancel
        objectName: "cancel"
        anchors.right: copy.left
        anchors.rightMargin: 8
        y: copy.y
        large: true
        text: qsTr("Cancel")
        KeyNavigation.tab: copy
        KeyNavigation.backtab: body
        onClicked: layer.leave()
    }

    CapsuleButton {
        id: copy
        objectName: "copy"
        x: parent.width - width - 20
        y: 342 - layer.cut
        large: true
        sidePad: 20
        primary: true
        text: qsTr("Copy")
        KeyNavigation.tab: body
        KeyNavigation.backtab: cancel
        onClicked: layer.editor.copy()
    }

    Question {
        id: question
        objectName: "discardQuestion"
        text: qsTr("Discard the changes?")
        onAccepted: layer.editor.discard()
    }
}
