import QtQuick
import Ravelo.Controls
import Ravelo.Paint
import Ravelo.Shelf
import Ravelo.Theme

/// The number of parked files, and actions on them.
Item {
    id: header

    required property ShelfFiles shelfFiles

    readonly property ShelfContents shelf: shelfFiles.parked

    implicitHeight: 32

    Label {
        id: count
        objectName: "shelfCount"
        y: 8
        text: header.shelf.header
        style: Theme.strong
        color: Theme.text1
    }

    Box {
        x: count.width + 10
        y: 14.5
        width: 3
        height: 3
        radius: 1.5
        color: Theme.white(0.30)
        visible: hint.visible
    }

    Label {
        id: hint
        objectName: "shelfHint"
        x: count.width + 23
        y: 8
        visible: x + implicitWidth < buttons.x
        text: qsTr("drag any to move all")
        style: Theme.small
        color: Theme.text3
    }

    Row {
        id: buttons
        anchors.right: parent.right
        y: 2
        spacing: 8

        CapsuleButton {
            objectName: "selectAll"
            text: header.shelf.selectText
            ghost: true
            onClicked: header.shelf.selectAllOrNone()
        }

        CapsuleButton {
            objectName: "removeSelected"
            text: qsTr("Remove")
            symbol: "trash"
            enabled: header.shelf.hasSelection
            onClicked: header.shelf.removeSelected()
        }

        CapsuleButton {
            id: airdrop
            objectName: "airdrop"
            text: qsTr("AirDrop")
            symbol: "airdrop"
            primary: true
            opacity: header.shelfFiles.sending.possible ? 1 : 0.4
            Accessible.description: header.shelfFiles.sending.advice
            onClicked: {
                const devices = header.shelfFiles.sending.devices;
                if (devices.length > 1) {
                    menu.offer(devices);
                    menu.openLeftUnder(airdrop, 0);
                } else {
                    header.shelfFiles.sending.send(header.shelf.chosen(), devices[0] ?? {});
                }
            }

            Tooltip {
                target: airdrop
                hovered: airdrop.hovered && !airdrop.pressed && text !== ""
                text: header.shelfFiles.sending.advice
            }
        }
    }

    Menu {
        id: menu
        objectName: "deviceMenu"
        name: qsTr("Send to")

        // No binding: new devices must not move the entries while the user chooses.
        function offer(devices: var) {
            entries = Array.from(devices, device => ({
                text: device.name,
                chosen: () => header.shelfFiles.sending.send(header.shelf.chosen(), device)
            }));
        }
    }
}
