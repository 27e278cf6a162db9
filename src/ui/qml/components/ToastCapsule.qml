import QtQuick
import Ravelo

/// The short message near the panel's bottom: comes with a spring, rising, and fades.
Item {
    id: capsule

    required property ToastMessage message

    readonly property bool shown: message.text !== ""

    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text
    width: label.implicitWidth + 36
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

        Label {
            id: label
            anchors.horizontalCenter: parent.horizontalCenter
            y: 10
            style: Theme.strong
            color: Theme.onWhite
        }
    }

    // The text stays while it fades.
    Connections {
        target: capsule.message
        function onTextChanged() {
            if (capsule.shown) {
                label.text = capsule.message.text;
            }
        }
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
