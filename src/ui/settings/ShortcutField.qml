import QtQuick
import Ravelo.Controls
import Ravelo.Settings
import Ravelo.Theme
import Ravelo.Windows

/// Shows keys, and records others.
FieldFrame {
    id: field

    required property ShortcutChoice choice

    readonly property bool recording: choice.recording

    function recordKey(event: KeyEvent) {
        const plain = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier;
        if (plain && event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab && !(event.modifiers & ~Qt.ShiftModifier)) {
            choice.stop();
            return;
        }
        event.accepted = true;
        if (event.isAutoRepeat) {
            return;
        } else if (plain && event.key === Qt.Key_Escape) {
            choice.stop();
        } else if (plain && event.key === Qt.Key_Backspace) {
            choice.clear();
        } else {
            choice.record(event.key, event.modifiers, event.nativeScanCode);
        }
    }

    input: field
    lit: recording || activeFocus
    mistaken: choice.mistaken
    implicitWidth: 176
    implicitHeight: 32
    activeFocusOnTab: true
    onActiveFocusChanged: {
        if (!activeFocus) {
            choice.stop();
        }
    }
    Component.onDestruction: choice.stop()

    Accessible.role: Accessible.Button
    Accessible.name: recording ? qsTr("Press the keys") : qsTr("Shortcut, %1").arg(Array.from(choice.caps).join(" ") || qsTr("none"))
    Accessible.description: choice.note
    Accessible.focusable: true
    Accessible.onPressAction: choice.start()

    Keys.onPressed: event => {
        if (recording) {
            recordKey(event);
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space) {
            event.accepted = true;
            choice.start();
        } else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            event.accepted = true;
            choice.clear();
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: {
            field.forceActiveFocus();
            field.choice.start();
        }
    }

    KeyCaps {
        objectName: "caps"
        x: 6
        y: 6
        visible: !field.recording
        caps: field.choice.caps
    }

    Label {
        objectName: "shortcutHint"
        x: 8
        y: 8
        visible: field.recording || field.choice.caps.length === 0
        text: field.recording ? qsTr("Press the keys…") : qsTr("None")
        style: Theme.body
        color: Theme.text4
    }

    MiniButton {
        objectName: "clearShortcut"
        x: parent.width - width - 6
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        visible: !field.recording && field.choice.caps.length > 0
        activeFocusOnTab: false
        symbol: "xmark"
        name: qsTr("Remove the shortcut")
        onClicked: field.choice.clear()
    }
}
