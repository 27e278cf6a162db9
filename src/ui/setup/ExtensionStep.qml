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

    function finish() {
        offer.canTurnOn ? offer.turnOn() : host.finish();
    }

    Keys.onReturnPressed: finish()
    Keys.onEnterPressed: finish()

    ScrolledPage {
        id: scrolled
        y: 40
        width: parent.width
        height: parent.height - 94 - y
        contentHeight: line.y + line.height

        /// The picture shrinks in a low window, so that the text stays visible.
        readonly property real part: Math.max(0.5, Math.min(1, (height - 126) / 216))

        DesktopPicture {
            id: picture
            objectName: "picture"
            x: (scrolled.width - width) / 2
            y: 24
            width: 320
            height: 186
            scale: scrolled.part
            transformOrigin: Item.Top
            readonly property bool ready: step.offer.waitsForLogin || !step.offer.isOffered

            panel: ready ? DesktopPicture.Ready : DesktopPicture.Outlined

            Glyph {
                x: 160 - width / 2
                y: (picture.ready ? 104 : 60) - height / 2
                size: picture.ready ? 20 : 26
                symbol: picture.ready ? "checkmark" : "puzzlepiece"
                color: picture.ready ? "#0f2a1b" : "white"
            }
        }

        Label {
            objectName: "extensionHeading"
            x: (scrolled.width - width) / 2
            y: 24 + 216 * scrolled.part
            text: step.offer.waitsForLogin ? qsTr("Log out and in once") : qsTr("One more thing on GNOME")
            style: Theme.question
            color: Theme.text1
        }

        Paragraph {
            id: line
            objectName: "next"
            x: (scrolled.width - width) / 2
            y: 60 + 216 * scrolled.part
            width: step.offer.canTurnOn ? 320 : 404
            horizontalAlignment: Text.AlignHCenter
            text: step.offer.canTurnOn
                ? qsTr("GNOME hides the clipboard and the top edge from programs. A small extension passes both on to Ravelo and stores nothing.")
                : step.offer.waitsForLogin
                ? qsTr("GNOME loads new extensions only when a session begins. Until then Ravelo opens on its handle and by its icon.")
                : step.offer.isOffered ? step.offer.next : qsTr("The extension is running.")
            style: Theme.leadLoose
            color: Theme.setupText
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(scrolled.y + line.y + line.height + 24, parent.height - 86)
        spacing: 10

        CapsuleButton {
            objectName: "finish"
            implicitHeight: 40
            sidePad: 24
            style: Theme.tab
            primary: !step.offer.canTurnOn
            text: step.offer.canTurnOn ? qsTr("Not now") : qsTr("Done")
            onClicked: step.host.finish()
        }

        CapsuleButton {
            objectName: "turnOn"
            visible: step.offer.canTurnOn
            implicitHeight: 40
            sidePad: 24
            style: Theme.tab
            primary: true
            text: qsTr("Turn on")
            onClicked: step.offer.turnOn()
        }
    }
}
