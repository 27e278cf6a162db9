import QtQuick
import Ravelo.Clips
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// The editor of a clip's text, a sheet over the whole panel.
FocusScope {
    id: layer

    required property ClipEditor editor
    readonly property bool editing: editor.editing
    property Item focusedBefore
    property bool complete: false

    function follow() {
        opacity = editing ? 1 : 0;
        editing ? begin() : end();
    }

    function begin() {
        focusedBefore = Window.activeFocusItem; // qmllint disable unqualified
        body.exactText = editor.draft;
        // The pointer may have opened the panel by chance; then only a press asks for the keyboard.
        if (!editor.resumed) {
            Typing.wantKeyboard(layer);
        }
        body.forceActiveFocus();
        body.cursorPosition = body.length;
    }

    function end() {
        if (focusedBefore) {
            focusedBefore.forceActiveFocus();
        } else {
            Typing.freeKeyboard(layer);
        }
    }

    /// Asks first if the text was changed.
    function leave() {
        if (editor.draft === editor.text) {
            editor.discard();
        } else {
            question.openUnder(bodyField, 0);
        }
    }

    objectName: "clipSheet"
    visible: opacity > 0
    enabled: editing
    opacity: 0
    Component.onCompleted: {
        complete = true;
        follow();
    }
    onEditingChanged: {
        if (complete) {
            follow();
        }
    }
    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text

    Keys.onPressed: event => {
        const returns = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.key === Qt.Key_Escape) {
            leave();
        } else if (returns && event.modifiers & Qt.ControlModifier) {
            editor.copy();
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

        /// The text scrolls if the panel is too low.
        readonly property real cut: Math.max(0, 394 + 2 * 14 - layer.height)

        anchors.horizontalCenter: parent.horizontalCenter
        y: layer.height < 560 ? (layer.height - height) / 2 : 84
        width: 420
        height: 394 - cut
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
            text: qsTr("Edit clip")
            style: Theme.heading
            color: Theme.text1
        }

        FieldFrame {
            id: bodyField
            objectName: "bodyField"
            input: body
            floats: true
            x: 20
            y: 56
            width: parent.width - 40
            height: 270 - sheet.cut

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
            y: 342 - sheet.cut
            large: true
            sidePad: 20
            primary: true
            text: qsTr("Copy")
            KeyNavigation.tab: body
            KeyNavigation.backtab: cancel
            onClicked: layer.editor.copy()
        }
    }

    Question {
        id: question
        objectName: "discardQuestion"
        text: qsTr("Discard the changes?")
        onAccepted: layer.editor.discard()
    }
}
