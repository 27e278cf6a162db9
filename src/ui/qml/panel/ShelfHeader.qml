import QtQuick
import Ravelo

/// How many files are parked, and what can be done with them.
Item {
    id: header

    required property PanelHost host

    readonly property ShelfContents shelf: host.shelf

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
        text: "drag any to move all"
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
            text: "Remove"
            symbol: "trash"
            enabled: header.shelf.hasSelection
            onClicked: header.shelf.removeSelected()
        }

        CapsuleButton {
            id: airdrop
            objectName: "airdrop"
            text: "AirDrop"
            symbol: "airdrop"
            primary: true
            opacity: header.host.sending.possible ? 1 : 0.4
            Accessible.description: header.host.sending.advice
            onClicked: {
                const devices = header.host.sending.devices;
                if (devices.length > 1) {
                    menu.offer(devices);
                    menu.openLeftUnder(airdrop, 0);
                } else {
                    header.host.sending.send(header.shelf.chosen(), devices[0] ?? {});
                }
            }

            Tooltip {
                target: airdrop
                hovered: airdrop.hovered && !airdrop.pressed && text !== ""
                text: header.host.sending.advice
            }
        }
    }

    Menu {
        id: menu
        objectName: "deviceMenu"
        name: "Send to"
        host: header.host

        // Not bound to the devices: what comes into reach must not move what is being chosen.
        function offer(devices: var) {
            entries = Array.from(devices, device => ({
                text: device.name,
                chosen: () => header.host.sending.send(header.shelf.chosen(), device)
            }));
        }
    }
}
