import QtQuick
import Ravelo

/// The first step.
FocusScope {
    id: step

    signal done

    Keys.onReturnPressed: done()
    Keys.onEnterPressed: done()

    WelcomePicture {
        objectName: "picture"
        x: 100
        y: 64
        width: 320
        height: 186
    }

    Label {
        objectName: "heading"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 286
        text: "Welcome to Ravelo"
        style: Theme.welcome
        color: Theme.text1
    }

    Paragraph {
        objectName: "line"
        x: 90
        y: 328
        width: 340
        horizontalAlignment: Text.AlignHCenter
        text: "Clipboard, shelf, snippets and a focus timer — one hover away at the top of your screen."
        style: Theme.leadLoose
        color: Theme.setupText
    }

    CapsuleButton {
        objectName: "start"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 396
        implicitHeight: 40
        sidePad: 24
        style: Theme.tab
        primary: true
        text: "Get started"
        onClicked: step.done()
    }
}
