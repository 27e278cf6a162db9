import QtQuick
import Ravelo

/// What fills a window of our own: a strip with its title, by which it is moved, a button that closes
/// it, and what is put below.
FocusScope {
    id: page

    required property string title
    default property alias content: body.data

    focus: true
    Keys.onEscapePressed: Window.window.close()

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
