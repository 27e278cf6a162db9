import QtQuick
import Ravelo.Controls
import Ravelo.Snippets
import Ravelo.Text
import Ravelo.Theme

/// The snippet editor.
Sheet {
    id: layer

    required property SnippetEditor editor
    /// Kept while the sheet fades out.
    property string imageFileName

    /// Without a title the sheet stays and marks the field.
    function save() {
        titleField.mistaken = !editor.canSave;
        if (editor.canSave) {
            editor.save();
        } else {
            title.forceActiveFocus();
        }
    }

    editing: editor.editing
    resumed: editor.resumed
    heading: qsTr("Edit snippet")
    onBegan: {
        titleField.mistaken = false;
        imageFileName = editor.imageFileName;
        title.text = editor.title;
        body.exactText = editor.body;
        if (editor.title === "") {
            title.forceActiveFocus();
        } else {
            body.forceActiveFocus();
            body.cursorPosition = body.length;
        }
    }
    onConfirmed: layer.save()
    onEscaped: editor.modified ? question.openOver(dialog) : editor.cancel()

    Connections {
        target: layer.editor
        function onChanged() {
            if (layer.editor.editing) {
                layer.imageFileName = layer.editor.imageFileName;
            }
        }
    }

    FieldFrame {
        id: titleField
        objectName: "titleField"
        input: title
        floats: true
        x: 20
        y: 56
        width: parent.width - 40
        height: 36

        EditLine {
            id: title
            objectName: "titleInput"
            x: 10
            width: parent.width - 20
            height: parent.height
            placeholder: qsTr("Title")
            KeyNavigation.tab: body
            KeyNavigation.backtab: save
            // In the text it begins a line.
            Keys.onReturnPressed: layer.save()
            Keys.onEnterPressed: layer.save()
            onTextChanged: {
                layer.editor.title = text;
                titleField.mistaken = false;
            }
        }
    }

    FieldFrame {
        objectName: "bodyField"
        input: body
        floats: true
        x: 20
        y: 104
        width: parent.width - 40
        height: 150 - layer.cut

        ScrolledEdit {
            anchors.fill: parent
            anchors.margins: 10
            edit: body

            EditArea {
                id: body
                objectName: "bodyInput"
                name: qsTr("Text")
                width: parent.width
                style: Theme.bodyLoose
                color: Theme.text1
                KeyNavigation.priority: KeyNavigation.BeforeItem
                KeyNavigation.tab: attach.visible ? attach : remove
                KeyNavigation.backtab: title
                onExactTextChanged: layer.editor.body = exactText
            }
        }
    }

    Image {
        objectName: "snippetImage"
        visible: layer.imageFileName !== ""
        x: 20
        y: 266 - layer.cut
        width: 56
        height: 56
        asynchronous: true
        sourceSize.width: 56
        sourceSize.height: 56
        source: layer.imageFileName === "" ? "" : "image://thumb/"
            + Theme.radiusRow * Screen.devicePixelRatio + "/" + layer.imageFileName
    }

    CapsuleButton {
        id: remove
        objectName: "removeImage"
        visible: layer.imageFileName !== ""
        x: 90
        y: 280 - layer.cut
        text: qsTr("Remove image")
        KeyNavigation.tab: cancel
        KeyNavigation.backtab: body
        onClicked: layer.editor.removeImage()
        onVisibleChanged: {
            if (!visible && activeFocus) {
                attach.forceActiveFocus();
            }
        }
    }

    CapsuleButton {
        id: attach
        objectName: "attachImage"
        visible: layer.imageFileName === ""
        x: 20
        y: 278 - layer.cut
        large: true
        sidePad: 14
        lead: 24 // The symbol is closer to the edge than the text.
        text: qsTr("Attach image from clipboard")
        KeyNavigation.tab: cancel
        KeyNavigation.backtab: body
        onClicked: layer.editor.attachImage()
        onVisibleChanged: {
            if (!visible && activeFocus) {
                remove.forceActiveFocus();
            }
        }

        PhotoBadgePlus {
            x: 10
            y: 7
            ground: Qt.tint(Theme.sheet, attach.color)
        }
    }

    CapsuleButton {
        id: cancel
        objectName: "cancel"
        anchors.right: save.left
        anchors.rightMargin: 8
        y: save.y
        large: true
        text: qsTr("Cancel")
        KeyNavigation.tab: save
        KeyNavigation.backtab: attach.visible ? attach : remove
        onClicked: layer.editor.cancel()
    }

    CapsuleButton {
        id: save
        objectName: "save"
        x: parent.width - width - 20
        y: 342 - layer.cut
        large: true
        sidePad: 20
        primary: true
        text: qsTr("Save")
        KeyNavigation.tab: title
        KeyNavigation.backtab: cancel
        onClicked: layer.save()
    }

    Question {
        id: question
        objectName: "snippetDiscardQuestion"
        text: qsTr("Discard the changes?")
        onAccepted: layer.editor.cancel()
    }
}
