import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Snippets
import Ravelo.Text
import Ravelo.Theme

/// The snippet editor, a sheet over the whole panel.
FocusScope {
    id: layer

    required property SnippetEditor editor
    readonly property bool editing: editor.editing
    /// Kept while the sheet fades out.
    property string imageFileName
    property Item focusedBefore
    property bool complete: false

    function end() {
        if (focusedBefore) {
            focusedBefore.forceActiveFocus();
        } else {
            Typing.freeKeyboard(layer);
        }
    }

    /// Without a title the sheet stays and marks the field.
    function save() {
        titleField.mistaken = !editor.canSave;
        if (editor.canSave) {
            editor.save();
        } else {
            title.forceActiveFocus();
        }
    }

    /// By key, which is easily pressed by mistake: asks first if something would be lost.
    function leave() {
        editor.modified ? question.openUnder(titleField, 0) : editor.cancel();
    }

    function begin() {
        titleField.mistaken = false;
        focusedBefore = Window.activeFocusItem; // qmllint disable unqualified
        imageFileName = editor.imageFileName;
        title.text = editor.title;
        body.exactText = editor.body;
        // The pointer may have opened the panel by chance; then only a press asks for the keyboard.
        if (!editor.resumed) {
            Typing.wantKeyboard(layer);
        }
        if (editor.title === "") {
            title.forceActiveFocus();
        } else {
            body.forceActiveFocus();
            body.cursorPosition = body.length;
        }
    }

    visible: opacity > 0
    enabled: editing
    opacity: editing ? 1 : 0
    Component.onCompleted: {
        complete = true;
        if (editing) {
            begin();
        }
    }
    onEditingChanged: {
        if (complete) {
            editing ? begin() : end();
        }
    }
    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text

    Connections {
        target: layer.editor
        function onChanged() {
            if (layer.editing) {
                layer.imageFileName = layer.editor.imageFileName;
            }
        }
    }

    Keys.onPressed: event => {
        const returns = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.key === Qt.Key_Escape) {
            leave();
        } else if (returns && (event.modifiers & Qt.ControlModifier || title.activeFocus)) {
            layer.save();
        }
        event.accepted = true; // Modal: keys do not reach what is below.
    }

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.sheetMoving
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.spring
        }
    }

    NotchFill {
        anchors.fill: parent
        flare: 18
        bottomRadius: 42
        color: Qt.rgba(0, 0, 0, 0.55)
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }

    Item {
        id: sheet
        objectName: "sheet"
        anchors.horizontalCenter: parent.horizontalCenter
        y: layer.height < 560 ? (layer.height - height) / 2 : 84
        width: 420
        height: 394 - cut
        /// The text scrolls if the panel is too low.
        readonly property real cut: Math.max(0, 394 + 2 * 14 - layer.height)
        scale: layer.editing ? 1 : 1 - Theme.move(4) / 100

        Behavior on scale {
            NumberAnimation {
                duration: Theme.sheetMoving
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.spring
            }
        }

        Shadow {
            anchors.fill: parent
            radius: 18
            color: Qt.rgba(0, 0, 0, 0.55)
            blur: 60
            drop: 24
        }

        Box {
            anchors.fill: parent
            radius: 18
            color: Theme.sheet
            lineColor: Theme.lineFloating
            lineWidth: 1
        }

        Label {
            id: heading
            x: 20
            y: 20
            text: qsTr("Edit snippet")
            style: Theme.heading
            color: Theme.text1
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
            height: 150 - sheet.cut

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
            y: 266 - sheet.cut
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
            y: 280 - sheet.cut
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
            y: 278 - sheet.cut
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
            y: 342 - sheet.cut
            large: true
            sidePad: 20
            primary: true
            text: qsTr("Save")
            KeyNavigation.tab: title
            KeyNavigation.backtab: cancel
            onClicked: layer.save()
        }
    }

    Question {
        id: question
        objectName: "snippetDiscardQuestion"
        text: qsTr("Discard the changes?")
        onAccepted: layer.editor.cancel()
    }
}
