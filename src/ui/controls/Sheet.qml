import QtQuick
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// A dialog over the whole panel, with an editor's fields. See SheetPlace.
FocusScope {
    id: layer

    required property bool editing
    /// Continues an edit from before the panel closed.
    required property bool resumed
    property string heading
    property Item focusedBefore
    property bool complete: false
    /// False until this is complete: it grows in.
    property bool up: false
    default property alias content: sheet.data
    readonly property alias dialog: sheet

    /// How much lower the sheet is because the panel is too low; the text scrolls then.
    readonly property real cut: Math.max(0, 394 + 2 * 14 - height)

    /// The fields get their values and one of them the focus.
    signal began
    /// With Ctrl+Return.
    signal confirmed
    /// With Escape, which is easily pressed by mistake.
    signal escaped

    function follow() {
        up = editing;
        if (editing) {
            focusedBefore = Typing.focused(layer);
            // The pointer may have opened the panel by chance; then only a press asks for the
            // keyboard.
            if (!resumed) {
                Typing.wantKeyboard(layer);
            }
            began();
        } else if (focusedBefore) {
            focusedBefore.forceActiveFocus();
        } else {
            Typing.freeKeyboard(layer);
        }
    }

    anchors.fill: parent
    visible: opacity > 0
    enabled: editing
    opacity: up ? 1 : 0
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
    Accessible.name: heading
    Keys.onPressed: event => {
        const returns = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.key === Qt.Key_Escape) {
            escaped();
        } else if (returns && event.modifiers & Qt.ControlModifier) {
            confirmed();
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
        height: 394 - layer.cut
        scale: layer.up ? 1 : 1 - Theme.move(4) / 100

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
            x: 20
            y: 20
            text: layer.heading
            style: Theme.heading
            color: Theme.text1
        }
    }
}
