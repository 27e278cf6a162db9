import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Theme
import Ravelo.Updates
import Ravelo.Windows

/// State of the update and its actions.
TitledPage {
    id: view

    required property UpdateWindow host

    readonly property Updater updater: host.updater

    // Unless another button has the focus.
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    function press() {
        if (updater.canInstall) {
            updater.install();
        } else {
            Window.window.close();
        }
    }

    Label {
        objectName: "message"
        x: 20
        y: 56
        width: parent.width - 40
        text: view.updater.title
        style: Theme.heading
        color: Theme.text1
    }

    Paragraph {
        objectName: "details"
        x: 20
        y: 82
        width: parent.width - 40
        maximumLineCount: 3
        elide: Text.ElideRight
        text: view.updater.details
    }

    Box {
        objectName: "progress"
        visible: view.updater.progress >= 0
        x: 20
        y: 108
        width: parent.width - 40
        height: 5
        radius: height / 2
        color: Theme.surface3

        Box {
            width: parent.width * Math.max(0, view.updater.progress)
            height: parent.height
            radius: height / 2
            color: Theme.accent
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 20
        y: parent.height - 48
        spacing: 8

        CapsuleButton {
            objectName: "later"
            text: view.updater.canInstall ? qsTr("Later") : qsTr("Close")
            onClicked: view.Window.window.close()
        }

        CapsuleButton {
            objectName: "install"
            visible: view.updater.canInstall
            primary: true
            text: qsTr("Install")
            onClicked: view.updater.install()
        }
    }
}
