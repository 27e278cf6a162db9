import QtQuick
import Ravelo

/// A question with "No" and "Yes". Return means yes, Escape and a click elsewhere mean no.
Item {
    id: question

    property alias text: label.text
    property bool opened: false
    /// Where its top right corner goes.
    property point corner

    signal accepted
    signal closed

    function close() {
        opened = false;
        closed();
    }

    function accept() {
        close();
        accepted();
    }

    anchors.fill: parent
    visible: bubble.opacity > 0
    enabled: opened
    onOpenedChanged: {
        if (opened) {
            forceActiveFocus();
        }
    }

    Keys.onReturnPressed: accept()
    Keys.onEnterPressed: accept()
    Keys.onEscapePressed: close()

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onPressed: question.close()
        onWheel: wheel => wheel.accepted = true
    }

    Item {
        id: bubble
        objectName: "question"
        x: question.corner.x - width
        y: question.corner.y
        width: Math.max(label.implicitWidth, buttons.width) + 30
        height: 86
        opacity: question.opened ? 1 : 0
        scale: question.opened ? 1 : 0.97
        transformOrigin: Item.TopRight

        Behavior on opacity {
            NumberAnimation {
                duration: question.opened ? Theme.floatingIn : Theme.floatingOut
                easing.type: Easing.OutCubic
            }
        }
        Behavior on scale {
            enabled: question.opened
            NumberAnimation {
                duration: Theme.floatingIn
                easing.type: Easing.OutCubic
            }
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.48)
            blur: 32
            drop: 12
        }

        Shadow {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Qt.rgba(0, 0, 0, 0.30)
            blur: 6
            drop: 2
        }

        Box {
            anchors.fill: parent
            radius: Theme.radiusPopover
            color: Theme.floating
            lineColor: Theme.lineFloating
            lineWidth: 1
        }

        MouseArea {
            anchors.fill: parent
        }

        Label {
            id: label
            x: 16
            y: 14
            style: Theme.strong
            color: Theme.text1
        }

        Row {
            id: buttons
            x: parent.width - width - 14
            y: 44
            spacing: 8

            CapsuleButton {
                objectName: "no"
                text: "No"
                onClicked: question.close()
            }
            CapsuleButton {
                objectName: "yes"
                text: "Yes"
                primary: true
                onClicked: question.accept()
            }
        }
    }
}
