import QtQuick
import Ravelo

/// The short message near the panel's bottom: comes with a spring, rising, and fades. May have a
/// button.
Item {
    id: capsule

    required property PanelHost host

    readonly property ToastMessage message: host.toast
    readonly property bool shown: message.text !== ""
    readonly property bool offers: message.action !== ""

    Accessible.role: Accessible.AlertMessage
    Accessible.name: offers ? label.text + ". Undo with Control Z" : label.text
    width: button.visible ? button.x + button.width + 4 : label.implicitWidth + 36
    height: 36
    opacity: 0
    visible: opacity > 0

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

        // What lies below is not pressed by a press beside the button, nor by one on the button that
        // comes just when another message is shown in its place.
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
                    capsule.host.keyboardFreed();
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

    // The text stays while it fades.
    Connections {
        target: capsule.message
        function onTextChanged() {
            if (capsule.shown) {
                label.text = capsule.message.text;
                button.name = capsule.message.action;
            }
        }
    }

    // The time stops while the pointer or the keyboard is on it.
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
