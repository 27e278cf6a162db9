import QtQuick
import Ravelo

/// What fills a window of our own: a strip with its title, by which it is moved, a button that closes
/// it, and what is put below, over a shadow where there is room for one.
FocusScope {
    id: page

    required property string title
    /// The window without the room for its shadow.
    required property rect frame
    default property alias content: body.data

    focus: true
    Keys.onEscapePressed: Window.window.close()

    // In little room it is smaller as a whole, so that nothing of it is cut off.
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

        // Before the strip: by Tab its button comes last.
        Item {
            id: body
            anchors.fill: parent
        }

        Item {
            id: strip
            objectName: "strip"
            width: parent.width
            height: 40

            // Holds on to nothing: the desktop has the pointer from here on, and no release comes.
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
                name: "Close"
                onClicked: page.Window.window.close()
            }
        }
    }
}
