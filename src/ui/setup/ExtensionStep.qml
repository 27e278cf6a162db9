import QtQuick
import Ravelo.Controls
import Ravelo.Setup
import Ravelo.Theme
import Ravelo.Windows

/// The last step on GNOME: the extension.
FocusScope {
    id: step

    required property OnboardingController host

    readonly property ExtensionOffer offer: host.extension

    Keys.onReturnPressed: host.finish()
    Keys.onEnterPressed: host.finish()

    ScrolledPage {
        id: scrolled
        y: 40
        width: parent.width
        height: done.y - y - 8
        contentHeight: next.y + next.height

        Label {
            objectName: "heading"
            x: (scrolled.width - width) / 2
            y: 32
            text: qsTr("Ravelo on GNOME")
            style: Theme.question
            color: Theme.text1
        }

        Paragraph {
            id: line
            objectName: "line"
            x: 60
            y: 76
            width: scrolled.width - 120
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("On GNOME a small extension lets Ravelo see what you copy, open at the top edge and stay above other windows. It talks to Ravelo only, and rests while Ravelo is closed.")
            style: Theme.leadLoose
            color: Theme.setupText
        }

        CapsuleButton {
            id: turnOn
            objectName: "turnOn"
            visible: step.offer.canTurnOn
            x: (scrolled.width - width) / 2
            y: line.y + line.height + 24
            implicitHeight: 36
            sidePad: 20
            text: qsTr("Turn on")
            onClicked: step.offer.turnOn()
        }

        Paragraph {
            id: next
            objectName: "next"
            x: 60
            y: turnOn.y
            width: scrolled.width - 120
            horizontalAlignment: Text.AlignHCenter
            text: step.offer.next
            style: Theme.lead
            color: Theme.text1
        }
    }

    CapsuleButton {
        id: done
        objectName: "finish"
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(398, parent.height - 86)
        implicitHeight: 40
        sidePad: 24
        style: Theme.tab
        primary: true
        text: qsTr("Done")
        onClicked: step.host.finish()
    }
}
