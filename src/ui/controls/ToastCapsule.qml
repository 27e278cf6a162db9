import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Text
import Ravelo.Theme

/// The short message near the panel's bottom, optionally with a button. Springs up and fades.
Item {
    id: capsule

    required property ToastMessage message

    /// False until this is complete: it springs up.
    property bool complete: false
    readonly property bool shown: complete && message.text !== ""
    readonly property bool offers: message.action !== ""

    /// Keeps the text while it fades.
    function follow() {
        if (message.text !== "") {
            label.text = message.text;
            button.name = message.action;
        }
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: offers ? qsTr("%1. Undo with Control Z").arg(label.text) : label.text
    width: button.visible ? button.x + button.width + 4 : label.implicitWidth + 36
    height: 36
    opacity: 0
    visible: opacity > 0
    Component.onCompleted: {
        complete = true;
        follow();
    }

    Shadow {
        anchors.fill: parent
        radius: 18
        color: Qt.rgba(0, 0, 0, 0.40)
        blur: 24
        drop: 8
    }

    Box {
        id: body
        objectName: "toast"
        width: parent.width
        height: parent.height
        radius: 18
        color: Theme.toast
        enabled: capsule.message.offering

        // Blocks presses beside the button, and on a button that is just being replaced.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
        }

        HoverHandler {
            id: hover
        }

        Label {
            id: label
            objectName: "message"
            x: 18
            y: 10
            style: Theme.strong
            color: Theme.onWhite
        }

        Pressable {
            id: button
            objectName: "toastAction"
            visible: name !== ""
            x: label.x + label.implicitWidth + 14
            y: 4
            width: action.implicitWidth + 26
            height: 28
            radius: 14
            rest: Theme.toastButton
            hover: Theme.hoveredToastButton
            press: Theme.pressedToastButton
            onClicked: {
                const focused = activeFocus;
                capsule.message.act();
                if (focused) {
                    Typing.freeKeyboard(capsule);
                }
            }

            Label {
                id: action
                x: 13
                y: 6
                style: Theme.strong
                color: Theme.onWhite
                text: button.name
            }
        }
    }

    Connections {
        target: capsule.message
        function onTextChanged() {
            capsule.follow();
        }
    }

    // Paused while hovered or focused.
    Binding {
        target: capsule.message
        property: "held"
        value: capsule.offers && (hover.hovered || button.activeFocus)
    }

    states: State {
        when: capsule.shown
        PropertyChanges {
            capsule.opacity: 1
            rise.y: 0
        }
    }

    transform: Translate {
        id: rise
        y: Theme.move(8)
    }

    transitions: [
        Transition {
            to: "*"
            from: ""
            NumberAnimation {
                properties: "opacity,y"
                duration: Theme.springing
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.spring
            }
        },
        Transition {
            to: ""
            SequentialAnimation {
                NumberAnimation {
                    property: "opacity"
                    duration: Theme.toastLeaving
                    easing.type: Easing.OutCubic
                }
                PropertyAction { property: "y" }
            }
        }
    ]
}
