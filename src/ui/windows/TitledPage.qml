import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme

/// Frame of our windows: a title strip to move it by, a close button, the content, and a shadow if
/// there is room.
FocusScope {
    id: page

    required property string title
    /// The window without the margin for its shadow.
    required property rect frame
    default property alias content: body.data

    focus: true
    Keys.onEscapePressed: Window.window.close()

    // Scaled down as a whole if space is short, so that nothing is cut off.
    Shadow {
        readonly property real part: page.frame.x / 72

        anchors.fill: whole
        radius: Theme.radiusEditor
        color: Qt.rgba(0, 0, 0, 0.50)
        blur: 72 * part
        drop: 24 * part
    }

    Item {
        id: whole
        x: page.frame.x
        y: page.frame.y
        width: page.frame.width
        height: page.frame.height

        Box {
            objectName: "window"
            anchors.fill: parent
            radius: Theme.translucent ? Theme.radiusEditor : 0
            color: Theme.window
            lineColor: Theme.windowLine
            lineWidth: 1
        }

        // Before the strip, so that the close button is last in tab order.
        Item {
            id: body
            anchors.fill: parent
        }

        Item {
            id: strip
            objectName: "strip"
            width: parent.width
            height: 40

            // Releases the grab: the desktop takes over the pointer, and no release event follows.
            MouseArea {
                anchors.fill: parent
                onPressed: mouse => {
                    mouse.accepted = false;
                    page.Window.window.startSystemMove();
                }
            }

            Label {
                objectName: "title"
                anchors.horizontalCenter: parent.horizontalCenter
                y: 12
                text: page.title
                style: Theme.strong
                color: Theme.text2
            }

            MiniButton {
                objectName: "close"
                anchors.right: parent.right
                anchors.rightMargin: 10
                y: 8
                rest: Theme.round
                symbol: "xmark"
                name: qsTr("Close")
                onClicked: page.Window.window.close()
            }
        }
    }
}
