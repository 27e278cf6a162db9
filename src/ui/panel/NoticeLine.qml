import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Panel
import Ravelo.Text
import Ravelo.Theme

/// The notice under the tabs. Moves the content below it down.
FocusScope {
    id: line

    required property Notices notices
    /// The panel is visible.
    required property bool open

    readonly property bool shown: notices.kind !== Notices.None
    /// How far the content below moves down.
    readonly property real room: (height + 8) * there
    property real there: shown ? 1 : 0

    // The last notice, kept while it fades out.
    property int kind: Notices.None
    property string lead
    property string rest
    property string action
    property bool dismissible
    readonly property bool red: kind === Notices.SavingFails || kind === Notices.NotDeleted
                                || kind === Notices.Warning

    property Item focusedBefore

    /// Moves the focus to the notice, or back.
    function toggleFocus() {
        if (activeFocus) {
            leave();
        } else if (shown && (button.visible || cross.visible)) {
            focusedBefore = Typing.focused(line);
            (button.visible ? button : cross).forceActiveFocus();
        }
    }

    function leave() {
        if (focusedBefore?.visible) {
            focusedBefore.forceActiveFocus();
        } else {
            Typing.freeKeyboard(line);
        }
        focusedBefore = null;
    }

    function follow() {
        if (shown) {
            const focused = activeFocus;
            kind = notices.kind;
            lead = notices.lead;
            rest = notices.rest;
            action = notices.action;
            dismissible = notices.dismissible;
            if (focused && !button.visible && !cross.visible) {
                leave();
            }
        } else if (activeFocus) {
            leave();
        }
    }

    height: 36
    enabled: shown
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: red ? Accessible.AlertMessage : Accessible.StatusBar
    Accessible.name: lead + " " + rest

    Component.onCompleted: follow()

    Connections {
        target: line.notices
        function onChanged() {
            line.follow();
        }
    }

    Behavior on there {
        enabled: line.open
        NumberAnimation {
            duration: Theme.move(line.shown ? Theme.noticeIn : Theme.noticeOut)
            easing.type: line.shown ? Easing.OutCubic : Easing.InCubic
        }
    }

    Behavior on opacity {
        enabled: line.open
        NumberAnimation {
            duration: Theme.fade(line.shown ? Theme.noticeIn : Theme.noticeOut)
            easing.type: line.shown ? Easing.OutCubic : Easing.InCubic
        }
    }

    Box {
        anchors.fill: parent
        radius: Theme.radiusRow
        color: line.red ? Theme.redNotice : Theme.surface2
        lineColor: line.red ? Theme.redNoticeLine : Theme.line
        lineWidth: 1
    }

    Glyph {
        objectName: "noticeGlyph"
        x: 12
        y: 9
        size: 18
        symbol: line.red ? "exclamationmark.circle.fill"
                         : line.kind === Notices.SavedAgain ? "checkmark.circle.fill"
                         : line.kind === Notices.Locked ? "lock" : "info.circle"
        color: line.red ? Theme.red : line.kind === Notices.SavedAgain ? Theme.green : Theme.text3
    }

    Label {
        id: first
        objectName: "noticeLead"
        x: 40
        y: 10
        width: Math.min(implicitWidth, buttons.x - 12 - x)
        style: Theme.body
        text: line.lead
        color: Theme.text1
    }

    Label {
        objectName: "noticeRest"
        x: first.x + first.width + 4
        y: 10
        width: Math.max(0, Math.min(implicitWidth, buttons.x - 12 - x))
        visible: width > 0
        style: Theme.body
        text: line.rest
        color: line.red ? Theme.text2 : Theme.text3
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: 6
        y: 6
        spacing: 6

        CapsuleButton {
            id: button
            objectName: "noticeAction"
            visible: line.action !== ""
            height: 24
            text: line.action
            onClicked: line.notices.act()
        }

        MiniButton {
            id: cross
            objectName: "noticeDismiss"
            visible: line.dismissible
            name: qsTr("Dismiss")
            symbol: "xmark"
            rest: Theme.none
            tint: Theme.text3
            onClicked: line.notices.dismiss()
        }
    }
}
