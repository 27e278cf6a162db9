import QtQuick
import Ravelo.Controls
import Ravelo.Setup
import Ravelo.Theme
import Ravelo.Windows

/// The first step.
FocusScope {
    id: step

    required property ShortcutChoice choice

    signal done

    Component.onCompleted: choice.look()
    Keys.onReturnPressed: done()
    Keys.onEnterPressed: done()

    ScrolledPage {
        id: scrolled
        y: 40
        width: parent.width
        height: start.y - y - 8
        contentHeight: line.y + line.height

        /// The picture shrinks in a low window, so that the text stays visible.
        readonly property real part: Math.max(0.5, Math.min(1, (height - 122) / 222))

        DesktopPicture {
            objectName: "picture"
            x: 100
            y: 24
            width: 320
            height: 186
            scale: scrolled.part
            transformOrigin: Item.Top
        }

        Label {
            objectName: "heading"
            x: (scrolled.width - width) / 2
            y: 24 + 222 * scrolled.part
            text: qsTr("Welcome to Ravelo")
            style: Theme.welcome
            color: Theme.text1
        }

        Paragraph {
            id: line
            objectName: "line"
            x: 90
            y: 66 + 222 * scrolled.part
            width: 340
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Clipboard, shelf, snippets and a focus timer — one hover away at the top of your screen.")
            style: Theme.leadLoose
            color: Theme.setupText
        }
    }

    CapsuleButton {
        id: start
        objectName: "start"
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(396, parent.height - 86 - (step.choice.isOffered ? 30 : 0))
        implicitHeight: 40
        sidePad: 24
        style: Theme.tab
        primary: true
        text: qsTr("Get started")
        onClicked: step.done()
    }

    Row {
        id: offer
        objectName: "shortcutOffer"
        visible: step.choice.isOffered
        anchors.horizontalCenter: parent.horizontalCenter
        y: start.y + start.height + 14
        spacing: 10

        Label {
            objectName: "shortcutText"
            y: 3
            text: step.choice.mistaken ? qsTr("Super+V is taken by another program") : qsTr("Open it with Super+V, too")
            style: Theme.body
            color: step.choice.mistaken ? Theme.mistake : Theme.text3
        }

        Toggle {
            objectName: "useShortcut"
            name: qsTr("Open it with Super+V, too")
            on: step.choice.caps.length > 0 && !step.choice.mistaken
            onToggled: on => step.choice.useOffered(on)
        }
    }
}
